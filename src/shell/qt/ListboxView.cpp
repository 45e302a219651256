#include "shell/qt/ListboxView.h"

#include "platform/Listbox.h"
#include "platform/MenuItem.h"
#include "shell/qt/ControlBinding.h"
#include "shell/qt/PainterGraphics.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

namespace {

constexpr int lineHeight = 18;

/// More than any column shows; laying out more would only cost time.
constexpr int longestShownText = 1000;

/// Shows each text on one line. The row is what is selected: no cell of it is marked on its own.
class RowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale & /*locale*/) const override {
        QString text = value.toString().left(longestShownText);
        for (QChar &each : text) {
            if (each.category() == QChar::Other_Control) {
                each = u' ';
            }
        }
        return text;
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state &= ~QStyle::State_HasFocus;
    }
};

} // namespace

ListboxView::ListboxView(Listbox &list, QWidget *parent) : QTableView(parent), list_(list) {
    setObjectName(list.objectName());
    setModel(&list);
    setItemDelegate(new RowDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    horizontalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(0);
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(lineHeight);
    verticalHeader()->setDefaultSectionSize(lineHeight);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    connect(&list, &Listbox::SelectionMoved, this, &ListboxView::ShowSelection);
    connect(&list, &Listbox::ScrollRequested, this, [this](int row) {
        // Right after a refill the scroll bar still has the range of the rows before.
        updateGeometries();
        scrollTo(list_.index(row, 0));
    });
}

void ListboxView::SetColumnWidths(std::initializer_list<int> widths) {
    int column = 0;
    for (const int width : widths) {
        horizontalHeader()->resizeSection(column++, width);
    }
}

void ListboxView::ShowSelection() {
    const QScopedValueRollback<bool> guard(showing_, true);
    if (list_.ListIndex() < 0) {
        clearSelection();
        setCurrentIndex({});
    } else {
        selectRow(list_.ListIndex());
    }
}

QModelIndex ListboxView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action == MoveHome || action == MoveEnd) {
        return list_.index(action == MoveHome ? 0 : list_.LastIndex(), 0);
    }
    return QTableView::moveCursor(action, modifiers);
}

void ListboxView::selectionChanged(const QItemSelection &now, const QItemSelection &before) {
    QTableView::selectionChanged(now, before);
    if (!showing_) {
        const QModelIndexList rows = selectionModel()->selectedRows();
        list_.SetListIndex(rows.isEmpty() ? -1 : rows.first().row());
    }
}

void ListboxView::paintEvent(QPaintEvent *event) {
    QPainter painter(viewport());
    int row = std::max(0, rowAt(0));
    int top = row < list_.ListCount() ? rowViewportPosition(row) : 0;
    for (; top < viewport()->height(); top += lineHeight) {
        PaintRow(painter, row++, top);
    }
    painter.end();
    QTableView::paintEvent(event);
}

void ListboxView::PaintRow(QPainter &painter, int row, int top) {
    for (int column = 0; column < list_.ColumnCount(); ++column) {
        PainterGraphics graphics(
            painter, QRectF(columnViewportPosition(column), top, columnWidth(column), lineHeight));
        Q_EMIT list_.CellBackgroundPaint(graphics, row, column);
    }
}

void ListboxView::mousePressEvent(QMouseEvent *event) {
    const QModelIndex cell = indexAt(event->position().toPoint());
    if (cell.isValid() && event->button() == Qt::LeftButton) {
        bool handled = false;
        Q_EMIT list_.CellClick(cell.row(), cell.column(), handled);
        if (handled) {
            return;
        }
    }
    QTableView::mousePressEvent(event);
}

void ListboxView::mouseDoubleClickEvent(QMouseEvent *event) {
    QTableView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton) {
        Q_EMIT list_.DoubleClick();
    }
}

void ListboxView::contextMenuEvent(QContextMenuEvent *event) {
    if (event->reason() == QContextMenuEvent::Mouse) {
        if (const QModelIndex cell = indexAt(event->pos()); cell.isValid()) {
            list_.SetListIndex(cell.row());
        }
    }
    const auto base = std::make_shared<MenuItem>();
    Q_EMIT list_.ConstructContextualMenu(*base);
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (int item = 0; item < base->Count(); ++item) {
        connect(menu->addAction(base->Item(item).Text()), &QAction::triggered, this,
                [this, base, item] { Q_EMIT list_.ContextualMenuAction(base->Item(item)); });
    }
    menu->popup(event->globalPos());
}

void ListboxView::focusOutEvent(QFocusEvent *event) {
    QTableView::focusOutEvent(event);
    if (LeavesForGood(*event)) {
        Q_EMIT list_.LostFocus();
    }
}
