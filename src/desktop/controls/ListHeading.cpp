#include "desktop/controls/ListHeading.h"

#include "desktop/controls/FontFit.h"
#include "platform/controls/Listbox.h"

ListHeading::ListHeading(Listbox &list, QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent), list_(list) {
    setVisible(list.HasHeading());
    setMinimumSectionSize(0);
    setHighlightSections(false);
    setSectionsClickable(list.SortsByHeading());
    connect(this, &QHeaderView::sectionResized, this, &ListHeading::Fit);
    connect(this, &QHeaderView::sectionClicked, &list, &Listbox::PressHeading);
    connect(&list, &Listbox::headerDataChanged, this, &ListHeading::ShowOrder);
}

void ListHeading::ShowOrder() {
    setSortIndicatorShown(list_.SortedColumn() >= 0 && list_.HasHeading());
    setSortIndicator(list_.SortedColumn(),
                     list_.SortsDescending() ? Qt::DescendingOrder : Qt::AscendingOrder);
    Fit();
}

void ListHeading::Fit() {
    const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
    // As for the list's own font, so that lists side by side begin at one height.
    setFixedHeight(parentWidget()->fontMetrics().height() + 2 * margin);
    ShrinkFont(*this, QFont(), [this] { return HasRoom(); });
}

bool ListHeading::HasRoom() const {
    const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
    const int mark = style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, this);
    for (int column = 0; column < list_.ColumnCount(); ++column) {
        const bool marked = isSortIndicatorShown() && column == list_.SortedColumn();
        const int place = sectionSize(column) - 2 * margin - (marked ? mark : 0);
        if (fontMetrics().horizontalAdvance(list_.Heading(column)) > place) {
            return false;
        }
    }
    return true;
}
