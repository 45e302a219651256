#include "desktop/lists/ListHeading.h"

#include "desktop/look/TextFitting.h"
#include "platform/lists/Listbox.h"

#include <QPainter>

ListHeading::ListHeading(Listbox &list, QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent), list_(list) {
    setVisible(list.HasHeading());
    setMinimumSectionSize(0);
    setHighlightSections(false);
    // The text is fitted below; Qt would elide it by the unfitted font.
    setTextElideMode(Qt::ElideNone);
    setSectionsClickable(list.SortsByHeading());
    connect(this, &QHeaderView::sectionClicked, &list, &Listbox::PressHeading);
    connect(&list, &Listbox::headerDataChanged, this, &ListHeading::ShowOrder);
}

void ListHeading::ShowOrder() {
    setSortIndicatorShown(list_.SortedColumn() >= 0 && list_.HasHeading());
    setSortIndicator(list_.SortedColumn(),
                     list_.SortsDescending() ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void ListHeading::paintSection(QPainter *painter, const QRect &rect, int column) const {
    const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
    const bool hasIndicator = isSortIndicatorShown() && column == list_.SortedColumn();
    const int indicator =
        hasIndicator ? style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, this) : 0;
    const QRect textRect = rect.adjusted(margin, 0, -margin - indicator, 0);
    painter->setFont(FittedFont(font(), {list_.Heading(column), textRect}));
    QHeaderView::paintSection(painter, rect, column);
}
