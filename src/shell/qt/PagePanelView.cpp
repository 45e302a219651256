#include "shell/qt/PagePanelView.h"

#include "platform/PagePanel.h"
#include "shell/qt/ControlBinding.h"

PagePanelView::PagePanelView(PagePanel &panel, QWidget *parent) : QStackedWidget(parent) {
    BindControl(panel, *this);
    connect(&panel, &PagePanel::Updated, this, [this, &panel] { setCurrentIndex(panel.Value()); });
}
