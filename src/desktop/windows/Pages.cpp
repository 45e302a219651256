#include "desktop/windows/Pages.h"

#include "desktop/fields/ControlBinding.h"
#include "platform/controls/PagePanel.h"

#include <QStackedWidget>

QStackedWidget *CreatePages(PagePanel &panel, std::vector<CreatePage> pages, QWidget *parent) {
    auto *view = new QStackedWidget(parent);
    BindControl(panel, *view);
    const auto show = [view, &panel, pages = std::move(pages)] {
        while (view->count() <= panel.Value()) {
            view->addWidget(pages.at(static_cast<size_t>(view->count()))(view));
        }
        view->setCurrentIndex(panel.Value());
    };
    show();
    QObject::connect(&panel, &PagePanel::Updated, view, show);
    return view;
}
