#pragma once

#include <QStackedWidget>

#include <functional>
#include <vector>

class PagePanel;

/// Shows the page of a PagePanel. The focus goes to the new page where it was there last.
class PagePanelView : public QStackedWidget {
    Q_OBJECT

public:
    PagePanelView(PagePanel &panel, QWidget *parent);

    /// Adds the page after the last one. It is built, as a child of the panel, when it or a later
    /// one first shows: nobody waits at the start for pages to come.
    void AddPage(std::function<QWidget *()> build);

private:
    void ShowPage();

    const PagePanel &panel_;
    std::vector<std::function<QWidget *()>> builders_;
};
