#pragma once

#include <QStackedWidget>

class PagePanel;

/// Shows the page of a PagePanel. The focus goes to the new page where it was there last.
class PagePanelView : public QStackedWidget {
    Q_OBJECT

public:
    PagePanelView(PagePanel &panel, QWidget *parent);
};
