#include "shell/qt/DateControlView.h"

#include "support/MainWindowTest.h"

#include <QAbstractButton>
#include <QCalendarWidget>
#include <QSignalSpy>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

/// The date field of the entry row, with the focus and on 15 November 2025; today is 15 March 2026.
class DateControlViewTest : public MainWindowTest {
protected:
    void SetUp() override {
        Open();
        Begin();
    }
    void Begin() {
        date.SetDateValue(Date(QDate(2025, 11, 15)));
        date.SetFocus();
    }
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

    DateControl &date = window.entryRow.DateField;
    DateControlView &field = Find<DateControlView>(u"DateField"_s);
    QLineEdit &other = Find<QLineEdit>(u"NoteField"_s);
};

TEST_F(DateControlViewTest, TakesADayAndRefusesWhatIsNone) {
    const Label &answer = window.entryRow.ErrorLabel; // To a Return that reaches the window.
    for (const auto &key : {u"\t"_s, u"{Backtab}"_s, u"\r"_s, u"{Num+Enter}"_s}) {
        Begin();
        ASSERT_TRUE(Selects(u"15.11.2025"_s));
        Type(u"31.02.2026"_s + key);
        EXPECT_TRUE(Selects(u"31.02.2026"_s) && LooksRefused());
        EXPECT_EQ(Day() + answer.Text(), u"2025-11-15"_s);
        EXPECT_EQ(field.toolTip(), u"31.02.2026 ist kein gültiges Datum."_s);
        EXPECT_EQ(QToolTip::text(), field.toolTip());
        Type(u"2"_s);
        EXPECT_TRUE(!LooksRefused() && field.toolTip().isEmpty());
        Type(key);
        EXPECT_EQ(field.text() + Day(), u"02.11.20252025-11-02"_s);
        EXPECT_EQ(field.hasFocus(), !answer.Text().isEmpty());
        EXPECT_EQ(field.hasFocus(), key != u"\t"_s && key != u"{Backtab}"_s);
        date.SetFocus();
        Type(u"31.2\x1b"_s);
        EXPECT_TRUE(Selects(u"02.11.2025"_s));
        window.entryRow.NewSale();
    }
}

TEST_F(DateControlViewTest, StepsByKeys) {
    const QString cases = u"+=16.11.2025|{Shift++}=16.11.2025|{Num+-}=14.11.2025|30{Up}=01.12.2025|"
                          "{Down}=14.11.2025|{PgUp}=15.10.2025|31.1.{PgDown}=28.02.2025|"
                          "h=15.03.2026|t31.2{Shift+T}=15.03.2026|1.1.-=31.12.2024|"
                          "010126-=31.12.2025|2026-03-01-=28.02.2026"_s;
    for (const QString &each : cases.split(u'|')) {
        Begin();
        Type(each.section(u'=', 0, 0));
        EXPECT_TRUE(Selects(each.section(u'=', 1))) << qPrintable(each + field.text());
        EXPECT_EQ(book.app.Locale().ShortDate(date.DateValue()), field.text());
    }
    Begin();
    Type(u"31.2.+"_s);
    EXPECT_TRUE(LooksRefused());
    Type(u"{Ctrl+T}"_s);
    EXPECT_EQ(Day(), u"2025-11-15"_s);
}

TEST_F(DateControlViewTest, SelectsAllWhenTheFocusComes) {
    Type(u"\t"_s);
    EXPECT_FALSE(field.hasSelectedText());
    ::Type(&other, u"{Backtab}"_s);
    EXPECT_TRUE(Selects(u"15.11.2025"_s));

    other.setFocus();
    QTest::mousePress(&field, Qt::LeftButton, {}, {20, 8});
    QMouseEvent jitter(QEvent::MouseMove, QPointF(22, 8), field.mapToGlobal(QPointF(22, 8)),
                       Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&field, &jitter);
    QTest::mouseRelease(&field, Qt::LeftButton, {}, {22, 8});
    EXPECT_TRUE(Selects(u"15.11.2025"_s));
    QTest::mouseClick(&field, Qt::LeftButton, {}, {20, 8});
    EXPECT_FALSE(field.hasSelectedText());

    Type(u"7"_s);
    date.SetFocus();
    EXPECT_TRUE(Selects(u"15.11.2025"_s));
}

TEST_F(DateControlViewTest, TakesADayAndDropsWhatIsNoneWhenTheMouseTakesTheFocus) {
    QString heard;
    QObject::connect(&date, &Control::LostFocus, &window, [&] { heard = Day(); });
    Type(u"0102"_s);
    other.setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(heard, u"2025-02-01"_s) << "the day is taken before the loss is told";

    date.SetFocus();
    Type(u"31.02.\r"_s);
    other.setFocus(Qt::MouseFocusReason);
    QTest::mouseClick(&other, Qt::LeftButton);
    EXPECT_EQ(field.text(), u"01.02.2025"_s);
    EXPECT_FALSE(LooksRefused());
    const QString notice = u"31.02. ist kein gültiges Datum. Es bleibt beim 01.02.2025."_s;
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return QToolTip::isVisible() && QToolTip::text() == notice; }));
    EXPECT_EQ(field.toolTip(), notice);
}

TEST_F(DateControlViewTest, KeepsWhatIsHalfTypedWhileAnotherWindowIsActive) {
    Type(u"1.2"_s);
    for (const QEvent::Type type : {QEvent::FocusOut, QEvent::FocusIn}) {
        QFocusEvent event(type, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(&field, &event);
        EXPECT_EQ(Day(), u"2025-11-15"_s);
    }
    Type(u"0."_s);
    EXPECT_EQ(field.text(), u"1.20."_s);
}

TEST_F(DateControlViewTest, TurnsByWholeNotchesOfTheWheel) {
    const std::pair<int, QString> turns[] = {
        {60, u"2025-11-15"_s}, {60, u"2025-11-16"_s}, {-240, u"2025-11-14"_s}};
    for (const auto &[delta, day] : turns) {
        TurnWheel(field, delta);
        EXPECT_EQ(Day(), day);
    }
}

TEST_F(DateControlViewTest, ChoosesInACalendar) {
    other.setFocus();
    QTest::mouseClick(field.findChild<QAbstractButton *>(), Qt::LeftButton);
    ASSERT_TRUE(Calendar());
    auto *days = Calendar()->findChild<QTableView *>();
    // Below the names of the weekdays; the first of November 2025 is a Saturday.
    const QModelIndex first = days->model()->index(1, 5);
    EXPECT_EQ(first.data().toInt(), 1);
    QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, days->visualRect(first).center());
    EXPECT_TRUE(!Calendar() && Selects(u"01.11.2025"_s));

    const QSignalSpy got(&date, &Control::GotFocus);
    const QSignalSpy lost(&date, &Control::LostFocus);
    Type(u"1.2.{Alt+Down}"_s);
    ASSERT_TRUE(Calendar());
    EXPECT_EQ(Calendar()->selectedDate(), QDate(2025, 2, 1));
    EXPECT_EQ(Calendar()->locale().language(), QLocale::German);
    EXPECT_EQ(Calendar()->firstDayOfWeek(), Qt::Monday);
    EXPECT_GE(Calendar()->y(), field.mapToGlobal(QPoint(0, 23)).y());
    ::Type(QApplication::focusWidget(), u"{Right}{Down}{PgDown}\r"_s);
    EXPECT_TRUE(!Calendar() && Selects(u"09.03.2025"_s));
    Type(u"{F4}"_s);
    ASSERT_TRUE(Calendar());
    ::Type(QApplication::focusWidget(), u"{Right}\x1b"_s);
    EXPECT_TRUE(!Calendar() && Selects(u"09.03.2025"_s));
    Type(u"{F4}"_s);
    ::Type(QApplication::focusWidget(), u"{Right}"_s);
    QTest::mouseClick(Calendar(), Qt::LeftButton, {}, {-5, -5});
    EXPECT_TRUE(!Calendar() && Selects(u"09.03.2025"_s));
    EXPECT_EQ(Day(), u"2025-03-09"_s);
    EXPECT_EQ(got.count() + lost.count(), 0);
}

TEST_F(DateControlViewTest, ShowsAWholeDayInTheNarrowestPlace) {
    field.setFont(QFont(u"DejaVu Sans"_s, 11));
    field.resize(100, 23);
    date.SetDateValue(Date(QDate(2026, 12, 31)));
    field.end(false);
    const auto *button = field.findChild<QAbstractButton *>();
    EXPECT_EQ(field.cursorPositionAt(QPoint(3, 11)), 0);
    EXPECT_EQ(field.cursorPositionAt(QPoint(button->x() - 1, 11)), 10);
}

} // namespace
