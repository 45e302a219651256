#include "desktop/controls/PagePanelView.h"

#include "desktop/controls/ControlBinding.h"
#include "platform/controls/PagePanel.h"

PagePanelView::PagePanelView(PagePanel &panel, QWidget *parent) : QStackedWidget(parent) {
    BindControl(panel, *this);
    connect(&panel, &PagePanel::Updated, this, [this, &panel] { setCurrentIndex(panel.Value()); });
}
