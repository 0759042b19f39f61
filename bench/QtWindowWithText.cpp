// The second reference for start-up: an empty window that draws, in the plainest way, the texts of the panel's first
// frame in their fonts, which measures Qt's finding, opening and shaping of those fonts.
#include <QApplication>
#include <QFontDatabase>
#include <QPainter>
#include <QWidget>

namespace {

class TextWindow final : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        int y = 20;
        const auto draw = [&](QFont font, int pixels, QFont::Weight weight, const char* text) {
            font.setPixelSize(pixels);
            font.setWeight(weight);
            painter.setFont(font);
            QRect used;
            painter.drawText(QRect(60, y, 600, 480), Qt::TextWordWrap, QString::fromUtf8(text), &used);
            y += used.height() + 4;
        };
        const auto sans = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
        const auto mono = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        draw(mono, 11, QFont::Medium, "GETTING STARTED");
        draw(QFont(QStringLiteral("serif")), 34, QFont::Bold, "Cue cards your audience can’t see.");
        draw(sans, 17, QFont::Normal,
            "• It stays on top of your slides, your browser, your demo — everything.\n"
            "• Where the desktop can, it is left out of screen shares: none of the usual programs sees this window.\n"
            "• Your audience sees your presentation. You see your talk track. That’s the whole idea.");
        draw(sans, 17, QFont::Bold, "floating notes window, invisible to screen share");
        draw(mono, 11, QFont::DemiBold, "CARD 01 / 05    00:00");
        draw(sans, 11, QFont::Medium, "38 words");
        draw(mono, 10, QFont::DemiBold, "E  EDIT");
    }
};

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    TextWindow window;
    window.resize(720, 560);
    window.show();
    return QApplication::exec();
}
