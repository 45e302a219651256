#include "shell/qt/DateControlView.h"

#include "platform/DateControl.h"
#include "platform/UserLocale.h"
#include "support/PrintText.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A window with a date field and another one, on 15 March 2026. It keeps the keys passed on to it.
class DateWindow : public QWidget {
public:
    DateWindow() {
        field.setGeometry(20, 10, 108, 23);
        other.setGeometry(20, 50, 108, 23);
        show();
        date.SetFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
    }

    UserLocale locale{QLocale(QLocale::German, QLocale::Germany)};
    DateControl date{u"DateField"_s, Date(QDate(2025, 11, 15)),
                     [] { return Date(QDateTime(QDate(2026, 3, 15), QTime(12, 0))); }};
    DateControlView field{date, locale, this};
    QLineEdit other{this};
    QList<int> passedOn;

    QString Day() const { return date.DateValue().SQLDate(); }
    /// That the field shows the day, and has it selected as a whole.
    bool Selects(const QString &text) const {
        return field.hasFocus() && field.text() == text && field.selectedText() == text;
    }
    bool LooksRefused() const { return field.palette().color(QPalette::Base) != Qt::white; }
    static QCalendarWidget *Calendar() {
        return qobject_cast<QCalendarWidget *>(QApplication::activePopupWidget());
    }
    void TurnWheel(int delta) {
        QWheelEvent event({5, 5}, field.mapToGlobal(QPointF(5, 5)), {}, {0, delta}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&field, &event);
    }

protected:
    void keyPressEvent(QKeyEvent *event) override { passedOn.append(event->key()); }
};

TEST(DateControlView, TakesEveryFormTypedOverTheSelection) {
    const QString cases[] = {u"010226"_s,     u"01022026"_s,   u"1.2.26"_s,
                             u"01.02.2026"_s, u"2026-02-01"_s, u"2026-2-1"_s};
    for (const QString &typed : cases) {
        DateWindow window;
        ASSERT_TRUE(window.Selects(u"15.11.2025"_s));
        QTest::keyClicks(&window.field, typed);
        EXPECT_EQ(window.field.text(), typed);
        EXPECT_EQ(window.Day(), u"2025-11-15"_s);
        QTest::keyClick(&window.field, Qt::Key_Tab);
        EXPECT_EQ(window.Day(), u"2026-02-01"_s) << qPrintable(typed);
        EXPECT_EQ(window.field.text(), u"01.02.2026"_s);
        EXPECT_TRUE(window.other.hasFocus());
    }
}

TEST(DateControlView, RefusesWhatIsNoDayAndKeepsTheFocus) {
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter}) {
        DateWindow window;
        QTest::keyClicks(&window.field, u"31.02.2026"_s);
        QTest::keyClick(&window.field, key);
        EXPECT_TRUE(window.Selects(u"31.02.2026"_s));
        EXPECT_EQ(window.Day(), u"2025-11-15"_s);
        EXPECT_TRUE(window.passedOn.isEmpty());
        EXPECT_EQ(window.field.toolTip(), u"31.02.2026 ist kein gültiges Datum."_s);
        EXPECT_EQ(QToolTip::text(), window.field.toolTip());
        EXPECT_TRUE(window.LooksRefused());

        QTest::keyClick(&window.field, Qt::Key_2);
        EXPECT_FALSE(window.LooksRefused());
        EXPECT_TRUE(window.field.toolTip().isEmpty());
        QTest::keyClick(&window.field, key);
        EXPECT_EQ(window.Day(), u"2025-11-02"_s);
    }
}

TEST(DateControlView, PassesReturnOnWithADayAndEscapeAlways) {
    DateWindow window;
    QTest::keyClicks(&window.field, u"0102"_s);
    QTest::keyClick(&window.field, Qt::Key_Return);
    EXPECT_TRUE(window.Selects(u"01.02.2025"_s));
    QTest::keyClick(&window.field, Qt::Key_Enter, Qt::KeypadModifier);
    QTest::keyClicks(&window.field, u"31.2"_s);
    QTest::keyClick(&window.field, Qt::Key_Escape);
    EXPECT_TRUE(window.Selects(u"01.02.2025"_s));
    EXPECT_EQ(window.passedOn, QList<int>({Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}));
}

TEST(DateControlView, StepsByKeys) {
    const struct {
        QString typed;
        Qt::Key key;
        QString shown;
    } cases[] = {
        {{}, Qt::Key_Plus, u"16.11.2025"_s},
        {{}, Qt::Key_Minus, u"14.11.2025"_s},
        {{}, Qt::Key_Up, u"16.11.2025"_s},
        {{}, Qt::Key_Down, u"14.11.2025"_s},
        {{}, Qt::Key_PageUp, u"15.10.2025"_s},
        {{}, Qt::Key_PageDown, u"15.12.2025"_s},
        {{}, Qt::Key_H, u"15.03.2026"_s},
        {{}, Qt::Key_T, u"15.03.2026"_s},
        {u"30"_s, Qt::Key_Up, u"01.12.2025"_s},
        {u"1.1."_s, Qt::Key_Minus, u"31.12.2024"_s},
        {u"010126"_s, Qt::Key_Minus, u"31.12.2025"_s},
        {u"31.1."_s, Qt::Key_PageDown, u"28.02.2025"_s},
        {u"2026-03-01"_s, Qt::Key_Minus, u"28.02.2026"_s},
        {u"t31.2"_s, Qt::Key_T, u"15.03.2026"_s},
    };
    for (const auto &each : cases) {
        for (const Qt::KeyboardModifier modifier :
             {Qt::NoModifier, Qt::KeypadModifier, Qt::ShiftModifier}) {
            DateWindow window;
            QTest::keyClicks(&window.field, each.typed);
            QTest::keyClick(&window.field, each.key, modifier);
            EXPECT_TRUE(window.Selects(each.shown)) << qPrintable(each.shown + window.field.text());
            EXPECT_EQ(window.locale.ShortDate(window.date.DateValue()), each.shown);
        }
    }
    DateWindow window;
    QTest::keyClicks(&window.field, u"31.2."_s);
    QTest::keyClick(&window.field, Qt::Key_Plus);
    EXPECT_TRUE(window.LooksRefused());
    QTest::keyClick(&window.field, Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(window.Day(), u"2025-11-15"_s);
}

TEST(DateControlView, SelectsAllWhenTheFocusComes) {
    DateWindow window;
    QTest::keyClick(&window.field, Qt::Key_Tab);
    EXPECT_FALSE(window.field.hasSelectedText());
    QTest::keyClick(&window.other, Qt::Key_Backtab);
    EXPECT_TRUE(window.Selects(u"15.11.2025"_s));

    window.other.setFocus();
    QTest::mousePress(&window.field, Qt::LeftButton, {}, {20, 8});
    QMouseEvent jitter(QEvent::MouseMove, QPointF(22, 8), window.field.mapToGlobal(QPointF(22, 8)),
                       Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window.field, &jitter);
    QTest::mouseRelease(&window.field, Qt::LeftButton, {}, {22, 8});
    EXPECT_TRUE(window.Selects(u"15.11.2025"_s));
    QTest::mouseClick(&window.field, Qt::LeftButton, {}, {20, 8});
    EXPECT_FALSE(window.field.hasSelectedText());

    QTest::keyClicks(&window.field, u"7"_s);
    window.date.SetFocus();
    EXPECT_TRUE(window.Selects(u"15.11.2025"_s));
}

TEST(DateControlView, TakesADayBeforeItTellsThatTheFocusIsLost) {
    DateWindow window;
    QString heard;
    QObject::connect(&window.date, &Control::LostFocus, &window, [&] { heard = window.Day(); });
    QTest::keyClicks(&window.field, u"0102"_s);
    window.other.setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(heard, u"2025-02-01"_s);
}

TEST(DateControlView, DropsWhatIsNoDayWhenTheMouseTakesTheFocus) {
    DateWindow window;
    QTest::keyClicks(&window.field, u"31.02."_s);
    QTest::keyClick(&window.field, Qt::Key_Return);
    window.other.setFocus(Qt::MouseFocusReason);
    QTest::mousePress(&window.other, Qt::LeftButton);
    QApplication::processEvents();
    QTest::mouseRelease(&window.other, Qt::LeftButton);
    EXPECT_EQ(window.field.text(), u"15.11.2025"_s);
    EXPECT_FALSE(window.LooksRefused());
    const QString notice = u"31.02. ist kein gültiges Datum. Es bleibt beim 15.11.2025."_s;
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return QToolTip::isVisible() && QToolTip::text() == notice; }));
    EXPECT_EQ(window.field.toolTip(), notice);
}

TEST(DateControlView, KeepsWhatIsHalfTypedWhileAnotherWindowIsActive) {
    DateWindow window;
    QTest::keyClicks(&window.field, u"1.2"_s);
    for (const QEvent::Type type : {QEvent::FocusOut, QEvent::FocusIn}) {
        QFocusEvent event(type, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(&window.field, &event);
        EXPECT_EQ(window.Day(), u"2025-11-15"_s);
    }
    QTest::keyClicks(&window.field, u"0."_s);
    EXPECT_EQ(window.field.text(), u"1.20."_s);
}

TEST(DateControlView, TurnsByTheWheelOnlyWithTheFocus) {
    DateWindow window;
    window.TurnWheel(60);
    EXPECT_EQ(window.Day(), u"2025-11-15"_s);
    window.TurnWheel(60);
    EXPECT_EQ(window.Day(), u"2025-11-16"_s);
    window.TurnWheel(-240);
    EXPECT_EQ(window.Day(), u"2025-11-14"_s);
    window.other.setFocus();
    window.TurnWheel(120);
    EXPECT_EQ(window.Day(), u"2025-11-14"_s);
}

TEST(DateControlView, ChoosesInACalendarByKeys) {
    DateWindow window;
    const QSignalSpy got(&window.date, &Control::GotFocus);
    const QSignalSpy lost(&window.date, &Control::LostFocus);
    QTest::keyClicks(&window.field, u"1.2."_s);
    QTest::keyClick(&window.field, Qt::Key_Down, Qt::AltModifier);
    QCalendarWidget *calendar = DateWindow::Calendar();
    ASSERT_TRUE(calendar);
    EXPECT_EQ(got.count(), 0);
    EXPECT_EQ(calendar->selectedDate(), QDate(2025, 2, 1));
    EXPECT_EQ(calendar->locale().language(), QLocale::German);
    EXPECT_EQ(calendar->firstDayOfWeek(), Qt::Monday);
    EXPECT_GE(calendar->y(), window.field.mapToGlobal(QPoint(0, window.field.height())).y());
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Return}) {
        QTest::keyClick(QApplication::focusWidget(), key);
    }
    EXPECT_FALSE(DateWindow::Calendar());
    EXPECT_TRUE(window.Selects(u"09.03.2025"_s));

    QTest::keyClick(&window.field, Qt::Key_F4);
    ASSERT_TRUE(DateWindow::Calendar());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(DateWindow::Calendar());
    EXPECT_TRUE(window.Selects(u"09.03.2025"_s));
    EXPECT_EQ(window.Day(), u"2025-03-09"_s);
    EXPECT_EQ(lost.count(), 0);
}

TEST(DateControlView, ChoosesInACalendarByTheMouse) {
    DateWindow window;
    window.other.setFocus();
    QTest::mouseClick(window.field.findChild<QAbstractButton *>(), Qt::LeftButton);
    ASSERT_TRUE(DateWindow::Calendar());
    auto *days = DateWindow::Calendar()->findChild<QTableView *>();
    // Below the names of the weekdays; the first of November 2025 is a Saturday.
    const QPoint first = days->visualRect(days->model()->index(1, 5)).center();
    EXPECT_EQ(days->model()->index(1, 5).data().toInt(), 1);
    QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, first);
    EXPECT_FALSE(DateWindow::Calendar());
    EXPECT_TRUE(window.Selects(u"01.11.2025"_s));

    QTest::keyClick(&window.field, Qt::Key_F4);
    ASSERT_TRUE(DateWindow::Calendar());
    QTest::mouseClick(DateWindow::Calendar(), Qt::LeftButton, {}, {-5, -5});
    EXPECT_FALSE(DateWindow::Calendar());
    EXPECT_TRUE(window.Selects(u"01.11.2025"_s));
}

TEST(DateControlView, ShowsAWholeDayInTheNarrowestPlace) {
    DateWindow window;
    window.field.setFont(QFont(u"DejaVu Sans"_s, 11));
    window.field.resize(100, 23);
    window.date.SetDateValue(Date(QDate(2026, 12, 31)));
    window.field.end(false);
    const auto *button = window.field.findChild<QAbstractButton *>();
    EXPECT_EQ(window.field.cursorPositionAt(QPoint(3, 11)), 0);
    EXPECT_EQ(window.field.cursorPositionAt(QPoint(button->x() - 1, 11)), 10);
}

} // namespace
