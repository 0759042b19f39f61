#include "ui/menu/ExportCommand.h"

#include "support/EventLoop.h"
#include "ui/menu/SafeFileName.h"
#include "ui/panel/PanelFixture.h"

#include <QAbstractButton>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>

#include <tuple>

namespace cuebright::test {

TEST(SafeFileName, IsWhatFileSystemsTake)
{
    const auto longEmoji = u"👩‍🚀"_s.repeated(100).toStdString(); // 11 bytes each
    const std::tuple<const char*, std::string, std::string> tests[] = {
        {"a plain name", "Talk", "Talk"},
        {"slashes", "Q3/Q4\\Q5", "Q3-Q4-Q5"},
        {"quotation marks, which the file dialog reads in its own way", "My \"great\" talk", "My 'great' talk"},
        {"somebody's home", "~root", "root"},
        {"a path", "../../etc/passwd", "-..-etc-passwd"},
        {"line breaks and controls",
            "a\nb\tc\x01"
            "d\x7f",
            "a b c d"},
        {"a hidden file", ".profile", "profile"},
        {"a resource of Qt", ":) Talk", ") Talk"},
        {"nothing", "", "Untitled"},
        {"too long once what is skipped is gone", "..." + std::string(196, 'x') + "😀😀", std::string(196, 'x') + "😀"},
        {"too long, cut between characters", longEmoji, longEmoji.substr(0, std::size_t {18} * 11)},
    };
    for (const auto& [name, deckName, expected] : tests)
        EXPECT_EQ(safeFileName(deckName), expected) << name;
}

class ExportCommandTest : public PanelFixture {
protected:
    QTemporaryDir folder; // the dialog checks files on disk
    QWidget panel;
    ExportCommand command {context, panel};

    void SetUp() override { setCards({"A", "B"}); }
    QString path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
    std::string& content(const char* name) { return fake.fileSystem.files[path(name).toStdString()]; }
    void type(const char* name) { command.dialog()->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(path(name)); }
    template <typename Dialog> void pressIn(const char* text)
    {
        for (const auto button : command.dialog()->findChildren<QAbstractButton*>()) {
            if (button->text() == QLatin1String(text) && qobject_cast<Dialog*>(button->window()))
                return button->click();
        }
        ADD_FAILURE() << "no button " << text;
    }
    std::string feedback() const { return store.feedbackMessage().value_or("none"); }
};

TEST_F(ExportCommandTest, ProposesTheDecksNameInADialogThatOnlyOurWindowsShow)
{
    command.exportDeck();
    const auto dialog = command.dialog();
    EXPECT_EQ(dialog->windowTitle(), u"Export Deck"_s);
    EXPECT_EQ(dialog->labelText(QFileDialog::Accept), u"Export"_s);
    EXPECT_EQ(dialog->selectedFiles().constFirst().section(QLatin1Char('/'), -1), u"Talk.md"_s);
    EXPECT_TRUE(dialog->isModal());
    EXPECT_TRUE(dialog->testOption(QFileDialog::DontUseNativeDialog));
    command.exportDeck();
    EXPECT_EQ(command.dialog(), dialog) << "one question at a time";
    dialog->reject();
    processEvents();
    EXPECT_FALSE(command.dialog());
    EXPECT_EQ(feedback(), "none");
}

TEST_F(ExportCommandTest, WritesTheTextAsItWasWhenTheDialogOpenedUnderTheNameThatWasTyped)
{
    command.exportDeck();
    store.deleteCard();
    type("Q3");
    pressIn<QFileDialog>("Export");
    EXPECT_EQ(content("Q3.md"), "A\n\n---\n\nB");
    EXPECT_EQ(feedback(), "Exported to Q3.md");
    fake.fileSystem.writeError = "no";
    command.exportDeck();
    type("Q4");
    pressIn<QFileDialog>("Export");
    EXPECT_EQ(feedback(), "Export failed — check file permissions");
}

TEST_F(ExportCommandTest, AsksBeforeItReplacesAFile)
{
    ASSERT_TRUE(QFile(path("old.md")).open(QIODevice::WriteOnly));
    command.exportDeck();
    const auto dialog = command.dialog();
    type("old");
    pressIn<QFileDialog>("Export");
    pressIn<QMessageBox>("Cancel");
    processEvents();
    EXPECT_EQ(feedback(), "none");
    EXPECT_TRUE(dialog->isVisible());
    pressIn<QFileDialog>("Export");
    pressIn<QMessageBox>("Replace");
    processEvents();
    EXPECT_EQ(feedback(), "Exported to old.md");
    EXPECT_FALSE(command.dialog());
}

} // namespace cuebright::test
