#include "desktop/windows/Pages.h"

#include "desktop/fields/ControlBinding.h"
#include "platform/controls/PagePanel.h"

#include <QStackedLayout>
#include <QWidget>

QWidget *CreatePages(PagePanel &panel, std::vector<CreatePage> pages, QWidget *parent) {
    // Not a QStackedWidget, which screen readers announce as a layered pane.
    auto *view = new QWidget(parent);
    auto *stack = new QStackedLayout(view);
    BindControl(panel, *view);
    const auto show = [view, stack, &panel, pages = std::move(pages)] {
        while (stack->count() <= panel.Value()) {
            stack->addWidget(pages.at(static_cast<size_t>(stack->count()))(view));
        }
        stack->setCurrentIndex(panel.Value());
    };
    show();
    QObject::connect(&panel, &PagePanel::Updated, view, show);
    return view;
}
