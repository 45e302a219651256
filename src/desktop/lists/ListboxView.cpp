#include "desktop/lists/ListboxView.h"

#include "desktop/drawing/Frame.h"
#include "desktop/drawing/PainterGraphics.h"
#include "desktop/fields/Focus.h"
#include "desktop/lists/CellEditor.h"
#include "desktop/lists/ListHeading.h"
#include "desktop/lists/RowDelegate.h"
#include "desktop/look/FontScaling.h"
#include "platform/lists/Listbox.h"
#include "platform/menus/MenuItem.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>

#include <utility>

namespace {

constexpr int lineHeight = 18;

} // namespace

ListboxView::ListboxView(Listbox &list, QWidget *parent) : QTableView(parent), list_(list) {
    setHorizontalHeader(new ListHeading(list, this));
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
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(0);
    ApplyScale();
    connect(&list, &Listbox::SelectionChanged, this, &ListboxView::ShowSelection);
    connect(&list, &Listbox::EditOpened, this, &ListboxView::OpenEditor);
    connect(&list, &Listbox::EditClosed, this, &ListboxView::CloseEditor);
    connect(&list, &Listbox::ScrollRequested, this, [this](int row) {
        // After a refill the scroll bar still has the range of the old rows.
        updateGeometries();
        scrollTo(list_.index(row, 0));
    });
}

void ListboxView::changeEvent(QEvent *event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        ApplyScale();
    }
}

bool ListboxView::event(QEvent *event) {
    const bool done = QTableView::event(event);
    if (event->type() == QEvent::Paint) {
        QPainter painter(this);
        FillFrame(painter, rect(), frameWidth(), palette().color(QPalette::Dark));
    }
    return done;
}

void ListboxView::SetColumnWidths(const std::vector<int> &widths) {
    widths_ = widths;
    widths_.resize(static_cast<size_t>(list_.ColumnCount()));
    ApplyScale();
}

void ListboxView::ApplyScale() {
    const double factor = ScaleFactor(*this);
    verticalHeader()->setDefaultSectionSize(Scaled(lineHeight, factor));
    for (int column = 0; const int width : widths_) {
        horizontalHeader()->setSectionResizeMode(column, width > 0 ? QHeaderView::Fixed
                                                                   : QHeaderView::Stretch);
        horizontalHeader()->resizeSection(column++, Scaled(width, factor));
    }
}

void ListboxView::OpenEditor() {
    const QModelIndex cell = list_.index(list_.EditedRow(), list_.EditedColumn());
    auto *editor = new CellEditor(list_, viewport());
    setIndexWidget(cell, editor);
    edited_ = cell;
    editor->setFocus(Qt::OtherFocusReason);
}

void ListboxView::CloseEditor() {
    QWidget *editor = indexWidget(edited_);
    if (editor == nullptr) {
        return;
    }
    if (window()->focusWidget() == editor) {
        setFocus(Qt::OtherFocusReason);
    }
    // Hidden now: its deletion waits for the event loop, which may run a menu or dialog first.
    editor->hide();
    setIndexWidget(edited_, nullptr);
}

void ListboxView::ShowSelection() {
    const QScopedValueRollback<bool> guard(isShowing_, true);
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
    if (!isShowing_) {
        const QModelIndexList rows = selectionModel()->selectedRows();
        list_.SetListIndex(rows.isEmpty() ? -1 : rows.first().row());
    }
}

void ListboxView::paintEvent(QPaintEvent *event) {
    QPainter painter(viewport());
    int row = std::max(0, rowAt(0));
    int top = row < list_.ListCount() ? rowViewportPosition(row) : 0;
    for (; top < viewport()->height(); top += verticalHeader()->defaultSectionSize()) {
        PaintRow(painter, row++, top);
    }
    painter.end();
    QTableView::paintEvent(event);
}

void ListboxView::PaintRow(QPainter &painter, int row, int top) {
    for (int column = 0; column < list_.ColumnCount(); ++column) {
        PainterGraphics graphics(painter,
                                 QRectF(columnViewportPosition(column), top, columnWidth(column),
                                        verticalHeader()->defaultSectionSize()));
        Q_EMIT list_.CellBackgroundPaint(graphics, row, column);
    }
}

bool ListboxView::HandlePress(QPoint position) {
    bool handled = false;
    Q_EMIT list_.MouseDown(rowAt(position.y()), columnAt(position.x()), handled);
    if (handled) {
        isPressHandled_ = true;
        return true;
    }
    const QModelIndex cell = indexAt(position);
    if (!cell.isValid()) {
        return false;
    }
    Q_EMIT list_.CellClick(cell.row(), cell.column(), handled);
    if (!handled) {
        list_.ToggleCheck(cell.row(), cell.column());
    }
    return handled;
}

void ListboxView::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && HandlePress(event->position().toPoint())) {
        return;
    }
    QTableView::mousePressEvent(event);
    // Qt 6.8 keeps the selection.
    if (!list_.RequiresSelection() && !indexAt(event->position().toPoint()).isValid()) {
        clearSelection();
    }
}

void ListboxView::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && std::exchange(isPressHandled_, false)) {
        const QPoint position = event->position().toPoint();
        Q_EMIT list_.MouseUp(rowAt(position.y()), columnAt(position.x()));
        return;
    }
    QTableView::mouseReleaseEvent(event);
}

void ListboxView::mouseDoubleClickEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton) {
        QTableView::mouseDoubleClickEvent(event);
        return;
    }
    const QModelIndex cell = indexAt(event->position().toPoint());
    if (list_.IsCheckBox(cell.row(), cell.column())) {
        // A second quick click toggles again.
        mousePressEvent(event);
    } else {
        QTableView::mouseDoubleClickEvent(event);
    }
    Q_EMIT list_.DoubleClick();
}

void ListboxView::keyPressEvent(QKeyEvent *event) {
    if (HandleKey(*event)) {
        return;
    }
    QTableView::keyPressEvent(event);
    if (hasFocus() && list_.ListIndex() >= 0) {
        Q_EMIT list_.KeyDown();
    }
}

bool ListboxView::HandleKey(const QKeyEvent &event) {
    if (event.keyCombination() == (Qt::SHIFT | Qt::Key_F10)) {
        OpenMenu(MenuPosition());
        return true;
    }
    // Keys of the keypad are allowed.
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
        return false;
    }
    const int row = list_.ListIndex();
    switch (event.key()) {
    case Qt::Key_Insert:
    case Qt::Key_Delete:
        // A key that is held down adds or removes only one record.
        if (!event.isAutoRepeat()) {
            Q_EMIT event.key() == Qt::Key_Insert ? AddRequested() : RemoveRequested();
        }
        return true;
    case Qt::Key_F2:
        OpenRow(row);
        return row >= 0;
    case Qt::Key_Space:
        ToggleChecks(row);
        return row >= 0;
    default:
        return false;
    }
}

void ListboxView::OpenRow(int row) {
    // Like a double click on the first cell.
    bool handled = row < 0;
    if (!handled) {
        Q_EMIT list_.CellClick(row, 0, handled);
    }
    if (!handled) {
        Q_EMIT list_.DoubleClick();
    }
}

void ListboxView::ToggleChecks(int row) {
    for (int column = 0; row >= 0 && column < list_.ColumnCount(); ++column) {
        list_.ToggleCheck(row, column);
    }
}

QItemSelectionModel::SelectionFlags ListboxView::selectionCommand(const QModelIndex &index,
                                                                  const QEvent *event) const {
    if (!list_.RequiresSelection()) {
        return QTableView::selectionCommand(index, event);
    }
    return index.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                           : QItemSelectionModel::NoUpdate;
}

void ListboxView::contextMenuEvent(QContextMenuEvent *event) {
    if (event->reason() == QContextMenuEvent::Keyboard) {
        OpenMenu(MenuPosition());
        return;
    }
    if (const QModelIndex cell = indexAt(event->pos()); cell.isValid()) {
        list_.SetListIndex(cell.row());
        // As if selected by an arrow key.
        Q_EMIT list_.KeyDown();
    }
    OpenMenu(event->globalPos());
}

QPoint ListboxView::MenuPosition() const {
    const QRect row = visualRect(list_.index(list_.ListIndex(), 0)) & viewport()->rect();
    return viewport()->mapToGlobal(row.bottomLeft());
}

void ListboxView::OpenMenu(QPoint position) {
    const auto base = std::make_shared<MenuItem>();
    Q_EMIT list_.ConstructContextualMenu(*base);
    if (base->Count() == 0) {
        return;
    }
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (int item = 0; item < base->Count(); ++item) {
        connect(menu->addAction(base->Item(item).Text()), &QAction::triggered, this,
                [this, base, item] { Q_EMIT list_.ContextualMenuAction(base->Item(item)); });
    }
    menu->popup(position);
}

void ListboxView::focusOutEvent(QFocusEvent *event) {
    QTableView::focusOutEvent(event);
    if (MovesToOtherControl(*event)) {
        Q_EMIT list_.LostFocus();
    }
}
