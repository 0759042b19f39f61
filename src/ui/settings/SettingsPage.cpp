#include "ui/settings/SettingsPage.h"

#include <QVBoxLayout>

namespace cuebright {

namespace {

constexpr int kHorizontalMargin = 20;
constexpr int kVerticalMargin = 14;
constexpr int kSectionGap = 12;

} // namespace

SettingsPage::SettingsPage(const QString& name, QWidget* parent)
    : QScrollArea(parent)
    , m_column(new QVBoxLayout)
{
    const auto page = new QWidget;
    page->setLayout(m_column);
    m_column->setContentsMargins(kHorizontalMargin, kVerticalMargin, kHorizontalMargin, kVerticalMargin);
    m_column->setSpacing(kSectionGap);
    setWidget(page);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(name);
}

} // namespace cuebright
