#include "desktop/fields/DateControlView.h"

#include "desktop/drawing/Frame.h"
#include "desktop/fields/CalendarPopup.h"
#include "desktop/fields/ControlBinding.h"
#include "desktop/fields/Focus.h"
#include "desktop/look/FontScaling.h"
#include "platform/controls/DateControl.h"
#include "platform/values/UserLocale.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace {

/// The space beside a date in 11 points in a field 100 points wide.
constexpr int buttonWidth = 11;
constexpr QColor darkRed(0x9c, 0x00, 0x06);

/// Opens the calendar. Draws a small calendar as its icon.
class CalendarButton : public QAbstractButton {
public:
    explicit CalendarButton(QWidget *field) : QAbstractButton(field) {
        setFocusPolicy(Qt::NoFocus);
        setAccessibleName(u"Kalender"_s);
        setCursor(Qt::ArrowCursor);
        setAttribute(Qt::WA_Hover);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainter painter(this);
        const double factor = ScaleFactor(*this);
        painter.scale(factor, factor);
        const QRect page(1, (qRound(height() / factor) - 10) / 2, 9, 10);
        const QColor ink = underMouse() ? Qt::black : QColor(0x60, 0x60, 0x60);
        FillFrame(painter, page, 1, ink);
        painter.fillRect(QRect(page.topLeft(), QSize(page.width(), 3)), ink);
        for (int y = page.top() + 4; y < page.bottom(); y += 2) {
            for (int x = page.left() + 2; x < page.right(); x += 2) {
                painter.fillRect(x, y, 1, 1, ink);
            }
        }
    }
};

QPalette InvalidPalette() {
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(0xff, 0xc7, 0xce));
    palette.setColor(QPalette::Text, darkRed);
    palette.setColor(QPalette::Highlight, darkRed);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

bool IsTab(const QEvent &event) {
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto &key = static_cast<const QKeyEvent &>(event);
    return (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) &&
           !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

} // namespace

DateControlView::DateControlView(DateControl &control, const UserLocale &locale, QWidget *parent)
    : QLineEdit(parent), control_(control), locale_(locale), button_(new CalendarButton(this)) {
    // Not by a click: mousePressEvent must recognise the click that sets the focus.
    setFocusPolicy(Qt::TabFocus);
    // A dropped text would not be committed without the focus.
    setAcceptDrops(false);
    setMaxLength(40);
    setFrame(false);
    ShowDay();
    BindControl(control, *this);
    connect(&control, &Control::Updated, this, &DateControlView::ShowDay);
    connect(&control, &Control::FocusRequested, this, &DateControlView::DiscardTyped);
    connect(&control, &Control::HintChanged, this, &DateControlView::ShowValidity);
    connect(this, &QLineEdit::textEdited, &control, [&control] { control.SetHint({}); });
    connect(button_, &QAbstractButton::clicked, this, &DateControlView::OpenCalendar);
    // After the binding: event filters run last to first, so the text is committed before
    // LostFocus.
    installEventFilter(this);
}

void DateControlView::ShowDay() {
    setText(locale_.ShortDate(control_.DateValue()));
    if (window()->focusWidget() == this) {
        selectAll();
    }
}

void DateControlView::DiscardTyped() {
    control_.SetHint({});
    ShowDay();
}

void DateControlView::ShowValidity() {
    setPalette(control_.Hint().isEmpty() ? QPalette() : InvalidPalette());
}

bool DateControlView::CommitTyped() {
    if (!control_.SetTyped(text())) {
        selectAll();
        return false;
    }
    ShowDay();
    return true;
}

void DateControlView::CommitOrDiscard() {
    const bool isValid = control_.SetTyped(text());
    ShowDay();
    if (!isValid) {
        control_.SetHint(control_.Hint() + u" Es bleibt beim %1."_s.arg(text()));
    }
}

bool DateControlView::eventFilter(QObject *watched, QEvent *event) {
    if (IsTab(*event)) {
        return !CommitTyped();
    }
    if (event->type() == QEvent::FocusOut &&
        MovesToOtherControl(*static_cast<QFocusEvent *>(event))) {
        CommitOrDiscard();
    }
    return QLineEdit::eventFilter(watched, event);
}

void DateControlView::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // After a valid day the key goes on to the page, which may have a default button.
        event->setAccepted(!CommitTyped());
        break;
    case Qt::Key_Escape:
        // The first press discards a typed text, the next one goes on to the page.
        event->setAccepted(isModified());
        DiscardTyped();
        break;
    default:
        if (!HandleKey(*event)) {
            QLineEdit::keyPressEvent(event);
        }
    }
}

bool DateControlView::HandleKey(const QKeyEvent &event) {
    const int key = event.key();
    const auto modifiers = event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    const bool isPlain = modifiers == Qt::NoModifier;
    if ((key == Qt::Key_F4 && isPlain) || (key == Qt::Key_Down && modifiers == Qt::AltModifier)) {
        OpenCalendar();
        return true;
    }
    return isPlain && !BelongsToText(key) && StepBy(key);
}

bool DateControlView::StepBy(int key) {
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Up:
        Step(&DateControl::Step, 1);
        return true;
    case Qt::Key_Minus:
    case Qt::Key_Down:
        Step(&DateControl::Step, -1);
        return true;
    case Qt::Key_PageUp:
        Step(&DateControl::StepMonths, -1);
        return true;
    case Qt::Key_PageDown:
        Step(&DateControl::StepMonths, 1);
        return true;
    case Qt::Key_H:
    case Qt::Key_T:
        control_.Today();
        ShowDay();
        return true;
    default:
        return false;
    }
}

void DateControlView::Step(void (DateControl::*step)(int), int count) {
    if (CommitTyped()) {
        (control_.*step)(count);
    }
}

bool DateControlView::BelongsToText(int key) const {
    // A complete day. In a shorter text a minus may be a separator, as in 2026-02-01.
    static const QRegularExpression day(
        u"^\\s*(\\d{6}|\\d{8}|\\d\\d?\\.\\d\\d?\\.(\\d\\d|\\d{4})|\\d{4}-\\d\\d?-\\d\\d?)$"_s);
    static const QRegularExpression letter(u"\\p{L}"_s);
    const QString typed = text().left(hasSelectedText() ? selectionStart() : cursorPosition());
    if (!isModified() || typed.isEmpty()) {
        return false;
    }
    if (key == Qt::Key_H || key == Qt::Key_T) {
        return letter.match(typed).hasMatch();
    }
    return key == Qt::Key_Minus && !day.match(typed).hasMatch();
}

void DateControlView::OpenCalendar() {
    setFocus(Qt::OtherFocusReason);
    // An invalid text is discarded: the calendar shows the day that it starts from.
    static_cast<void>(control_.SetTyped(text()));
    DiscardTyped();
    auto *calendar = new CalendarPopup(control_.DateValue().Day(), locale_.Locale(), this);
    connect(calendar, &CalendarPopup::Selected, this,
            [this](QDate day) { control_.SetDateValue(Date(day)); });
    calendar->Open();
}

void DateControlView::focusInEvent(QFocusEvent *event) {
    QLineEdit::focusInEvent(event);
    // The selection stays for a menu, a half typed text in any case.
    const bool fromMenu =
        event->reason() == Qt::PopupFocusReason || event->reason() == Qt::MenuBarFocusReason;
    if (!fromMenu && !isModified()) {
        selectAll();
    }
}

void DateControlView::mousePressEvent(QMouseEvent *event) {
    isFocusingClick_ = !hasFocus();
    if (isFocusingClick_) {
        setFocus(Qt::MouseFocusReason);
    } else {
        QLineEdit::mousePressEvent(event);
    }
}

void DateControlView::mouseMoveEvent(QMouseEvent *event) {
    if (!isFocusingClick_) {
        QLineEdit::mouseMoveEvent(event);
    }
}

void DateControlView::mouseReleaseEvent(QMouseEvent *event) {
    if (!isFocusingClick_) {
        QLineEdit::mouseReleaseEvent(event);
    }
    isFocusingClick_ = false;
}

void DateControlView::wheelEvent(QWheelEvent *event) {
    wheelDelta_ += event->angleDelta().y();
    const int days = wheelDelta_ / QWheelEvent::DefaultDeltasPerStep;
    wheelDelta_ %= QWheelEvent::DefaultDeltasPerStep;
    if (days != 0) {
        Step(&DateControl::Step, days);
    }
    event->accept();
}

void DateControlView::resizeEvent(QResizeEvent *event) {
    QLineEdit::resizeEvent(event);
    const int side = Scaled(buttonWidth, ScaleFactor(*this));
    button_->setGeometry(width() - 1 - side, 1, side, height() - 2);
    // QLineEdit adds two points on each side; those on the right lie under the button.
    setTextMargins(1, 0, side - 2, 0);
}

void DateControlView::paintEvent(QPaintEvent *event) {
    QLineEdit::paintEvent(event);
    // The frame of a line edit; setFrame(true) would reduce the width of the text.
    QStyleOptionFrame option;
    initStyleOption(&option);
    option.lineWidth = 1;
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_FrameLineEdit, &option, &painter, this);
}
