#include "shell/qt/DateControlView.h"

#include "platform/DateControl.h"
#include "platform/UserLocale.h"
#include "support/MainWindowTest.h"

#include <QAbstractButton>
#include <QCalendarWidget>
#include <QSignalSpy>
#include <QToolTip>

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

    void Type(const QString &text) { ::Type(&field, text); }
    QString Day() const { return date.DateValue().SQLDate(); }
    /// That the field shows the day, and has it selected as a whole.
    bool Selects(const QString &text) const {
        return field.hasFocus() && field.text() == text && field.selectedText() == text;
    }
    bool LooksRefused() const { return field.palette().color(QPalette::Base) != Qt::white; }
    static QCalendarWidget *Calendar() {
        return qobject_cast<QCalendarWidget *>(QApplication::activePopupWidget());
    }

protected:
    void keyPressEvent(QKeyEvent *event) override { passedOn.append(event->key()); }
};

TEST(DateControlView, TakesADayAndRefusesWhatIsNone) {
    const std::pair<QString, QList<int>> keys[] = {{u"\t"_s, {}},
                                                   {u"{Backtab}"_s, {}},
                                                   {u"\r"_s, {Qt::Key_Return}},
                                                   {u"{Num+Enter}"_s, {Qt::Key_Enter}}};
    for (const auto &[key, passedOn] : keys) {
        DateWindow window;
        ASSERT_TRUE(window.Selects(u"15.11.2025"_s));
        window.Type(u"31.02.2026"_s + key);
        EXPECT_TRUE(window.Selects(u"31.02.2026"_s) && window.LooksRefused());
        EXPECT_EQ(window.Day(), u"2025-11-15"_s);
        EXPECT_EQ(window.field.toolTip(), u"31.02.2026 ist kein gültiges Datum."_s);
        EXPECT_EQ(QToolTip::text(), window.field.toolTip());
        window.Type(u"2"_s);
        EXPECT_TRUE(!window.LooksRefused() && window.field.toolTip().isEmpty());
        EXPECT_EQ(window.passedOn, QList<int>());
        window.Type(key);
        EXPECT_EQ(window.field.text() + window.Day(), u"02.11.20252025-11-02"_s);
        EXPECT_EQ(window.other.hasFocus(), passedOn.isEmpty());
        EXPECT_EQ(window.passedOn, passedOn);
        window.date.SetFocus();
        window.Type(u"31.2\x1b"_s);
        EXPECT_TRUE(window.Selects(u"02.11.2025"_s));
        EXPECT_EQ(window.passedOn.last(), Qt::Key_Escape);
    }
}

TEST(DateControlView, StepsByKeys) {
    const QString cases = u"+=16.11.2025|{Shift++}=16.11.2025|{Num+-}=14.11.2025|30{Up}=01.12.2025|"
                          "{Down}=14.11.2025|{PgUp}=15.10.2025|31.1.{PgDown}=28.02.2025|"
                          "h=15.03.2026|t31.2{Shift+T}=15.03.2026|1.1.-=31.12.2024|"
                          "010126-=31.12.2025|2026-03-01-=28.02.2026"_s;
    for (const QString &each : cases.split(u'|')) {
        const QString keys = each.section(u'=', 0, 0);
        const QString shown = each.section(u'=', 1);
        DateWindow window;
        window.Type(keys);
        EXPECT_TRUE(window.Selects(shown)) << qPrintable(shown + window.field.text());
        EXPECT_EQ(window.locale.ShortDate(window.date.DateValue()), shown);
    }
    DateWindow window;
    window.Type(u"31.2.+"_s);
    EXPECT_TRUE(window.LooksRefused());
    window.Type(u"{Ctrl+T}"_s);
    EXPECT_EQ(window.Day(), u"2025-11-15"_s);
}

TEST(DateControlView, SelectsAllWhenTheFocusComes) {
    DateWindow window;
    window.Type(u"\t"_s);
    EXPECT_FALSE(window.field.hasSelectedText());
    Type(&window.other, u"{Backtab}"_s);
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

    window.Type(u"7"_s);
    window.date.SetFocus();
    EXPECT_TRUE(window.Selects(u"15.11.2025"_s));
}

TEST(DateControlView, TakesADayAndDropsWhatIsNoneWhenTheMouseTakesTheFocus) {
    DateWindow window;
    QString heard;
    QObject::connect(&window.date, &Control::LostFocus, &window, [&] { heard = window.Day(); });
    window.Type(u"0102"_s);
    window.other.setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(heard, u"2025-02-01"_s) << "the day is taken before the loss is told";

    window.date.SetFocus();
    window.Type(u"31.02.\r"_s);
    window.other.setFocus(Qt::MouseFocusReason);
    QTest::mouseClick(&window.other, Qt::LeftButton);
    EXPECT_EQ(window.field.text(), u"01.02.2025"_s);
    EXPECT_FALSE(window.LooksRefused());
    const QString notice = u"31.02. ist kein gültiges Datum. Es bleibt beim 01.02.2025."_s;
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return QToolTip::isVisible() && QToolTip::text() == notice; }));
    EXPECT_EQ(window.field.toolTip(), notice);
}

TEST(DateControlView, KeepsWhatIsHalfTypedWhileAnotherWindowIsActive) {
    DateWindow window;
    window.Type(u"1.2"_s);
    for (const QEvent::Type type : {QEvent::FocusOut, QEvent::FocusIn}) {
        QFocusEvent event(type, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(&window.field, &event);
        EXPECT_EQ(window.Day(), u"2025-11-15"_s);
    }
    window.Type(u"0."_s);
    EXPECT_EQ(window.field.text(), u"1.20."_s);
}

TEST(DateControlView, TurnsByWholeNotchesOfTheWheel) {
    DateWindow window;
    const std::pair<int, QString> turns[] = {
        {60, u"2025-11-15"_s}, {60, u"2025-11-16"_s}, {-240, u"2025-11-14"_s}};
    for (const auto &[delta, day] : turns) {
        TurnWheel(window.field, delta);
        EXPECT_EQ(window.Day(), day);
    }
}

TEST(DateControlView, ChoosesInACalendar) {
    DateWindow window;
    window.other.setFocus();
    QTest::mouseClick(window.field.findChild<QAbstractButton *>(), Qt::LeftButton);
    ASSERT_TRUE(window.Calendar());
    auto *days = window.Calendar()->findChild<QTableView *>();
    // Below the names of the weekdays; the first of November 2025 is a Saturday.
    const QModelIndex first = days->model()->index(1, 5);
    EXPECT_EQ(first.data().toInt(), 1);
    QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, days->visualRect(first).center());
    EXPECT_TRUE(!window.Calendar() && window.Selects(u"01.11.2025"_s));

    const QSignalSpy got(&window.date, &Control::GotFocus);
    const QSignalSpy lost(&window.date, &Control::LostFocus);
    window.Type(u"1.2.{Alt+Down}"_s);
    ASSERT_TRUE(window.Calendar());
    EXPECT_EQ(window.Calendar()->selectedDate(), QDate(2025, 2, 1));
    EXPECT_EQ(window.Calendar()->locale().language(), QLocale::German);
    EXPECT_EQ(window.Calendar()->firstDayOfWeek(), Qt::Monday);
    EXPECT_GE(window.Calendar()->y(), window.field.mapToGlobal(QPoint(0, 23)).y());
    Type(QApplication::focusWidget(), u"{Right}{Down}{PgDown}\r"_s);
    EXPECT_TRUE(!window.Calendar() && window.Selects(u"09.03.2025"_s));
    window.Type(u"{F4}"_s);
    ASSERT_TRUE(window.Calendar());
    Type(QApplication::focusWidget(), u"{Right}\x1b"_s);
    EXPECT_TRUE(!window.Calendar() && window.Selects(u"09.03.2025"_s));
    window.Type(u"{F4}"_s);
    Type(QApplication::focusWidget(), u"{Right}"_s);
    QTest::mouseClick(window.Calendar(), Qt::LeftButton, {}, {-5, -5});
    EXPECT_TRUE(!window.Calendar() && window.Selects(u"09.03.2025"_s));
    EXPECT_EQ(window.Day(), u"2025-03-09"_s);
    EXPECT_EQ(got.count() + lost.count(), 0);
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
