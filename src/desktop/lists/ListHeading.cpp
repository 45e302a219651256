#include "desktop/lists/ListHeading.h"

#include "desktop/look/TextFitting.h"
#include "platform/lists/Listbox.h"

#include <QPainter>

ListHeading::ListHeading(Listbox &list, QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent), list_(list) {
    setVisible(list.HasHeading());
    setMinimumSectionSize(0);
    setHighlightSections(false);
    // It is fitted; the toolkit would cut it by the letters before.
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

void ListHeading::paintSection(QPainter *painter, const QRect &place, int column) const {
    const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
    const bool marked = isSortIndicatorShown() && column == list_.SortedColumn();
    const int mark = marked ? style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, this) : 0;
    const QRect room = place.adjusted(margin, 0, -margin - mark, 0);
    painter->setFont(FittedFont(font(), {list_.Heading(column), room}));
    QHeaderView::paintSection(painter, place, column);
}
