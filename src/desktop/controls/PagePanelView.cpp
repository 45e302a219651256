#include "desktop/controls/PagePanelView.h"

#include "desktop/controls/ControlBinding.h"
#include "platform/controls/PagePanel.h"

PagePanelView::PagePanelView(PagePanel &panel, QWidget *parent)
    : QStackedWidget(parent), panel_(panel) {
    BindControl(panel, *this);
    connect(&panel, &PagePanel::Updated, this, &PagePanelView::ShowPage);
}

void PagePanelView::AddPage(std::function<QWidget *()> build) {
    builders_.push_back(std::move(build));
    ShowPage();
}

void PagePanelView::ShowPage() {
    const int known = static_cast<int>(builders_.size());
    while (count() <= panel_.Value() && count() < known) {
        addWidget(builders_[static_cast<size_t>(count())]());
    }
    setCurrentIndex(panel_.Value());
}
