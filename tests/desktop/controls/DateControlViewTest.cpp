#include "desktop/controls/DateControlView.h"

#include "support/MainWindowTest.h"

#include <QAbstractButton>
#include <QCalendarWidget>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

/// The date field of the entry row, with the focus and on 15 November 2025; today is 15 March 2026.
class DateControlViewTest : public MainWindowTest {
protected:
    DateControlViewTest() {
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
    for (const auto &key : {u"\t"_s, u"{Backtab}"_s, u"\r"_s, u"{Num+Enter}"_s}) {
        Begin();
        Type(u"31.02.2026"_s + key);
        EXPECT_TRUE(Selects(u"31.02.2026"_s) && LooksRefused());
        EXPECT_EQ(Day() + window.entryRow.ErrorLabel.Text(), u"2025-11-15"_s);
        EXPECT_EQ(QToolTip::text(), u"31.02.2026 ist kein gültiges Datum."_s);
        Type(u"2"_s);
        EXPECT_FALSE(LooksRefused());
        Type(key);
        EXPECT_EQ(field.text() + Day(), u"02.11.20252025-11-02"_s);
        EXPECT_EQ(field.hasFocus(), key != u"\t"_s && key != u"{Backtab}"_s);
        date.SetFocus();
        Type(u"31.2\x1b"_s);
        EXPECT_TRUE(Selects(u"02.11.2025"_s));
        window.entryRow.NewSale();
    }
}

TEST_F(DateControlViewTest, RefusesATextThatOnlyBeginsLikeADay) {
    for (const auto &text : {u"10000-01-01"_s, u"100000-01-01"_s, u"1-2-26"_s, u"3. okt"_s}) {
        Begin();
        Type(text + u'\r');
        EXPECT_TRUE(LooksRefused()) << qPrintable(text);
        window.entryRow.NewSale();
    }
}

TEST_F(DateControlViewTest, StepsByKeys) {
    const QString cases = u"+=16.11.2025|{Num+-}=14.11.2025|30{Up}=01.12.2025|{Down}=14.11.2025|"
                          "{PgUp}=15.10.2025|31.1.{PgDown}=28.02.2025|h=15.03.2026|"
                          "t31.2{Shift+T}=15.03.2026|010126-=31.12.2025|2026-03-01-=28.02.2026"_s;
    for (const QString &each : cases.split(u'|')) {
        Begin();
        Type(each.section(u'=', 0, 0));
        EXPECT_TRUE(Selects(each.section(u'=', 1))) << qPrintable(each + field.text());
        EXPECT_EQ(book.app.Locale().ShortDate(date.DateValue()), field.text());
    }
}

TEST_F(DateControlViewTest, SelectsAllWhenTheFocusComes) {
    Type(u"\t"_s);
    ::Type(&other, u"{Backtab}"_s);
    EXPECT_TRUE(Selects(u"15.11.2025"_s));
    other.setFocus();
    QTest::mouseClick(&field, Qt::LeftButton, {}, {20, 8});
    EXPECT_TRUE(Selects(u"15.11.2025"_s));
    QTest::mouseClick(&field, Qt::LeftButton, {}, {20, 8});
    EXPECT_FALSE(field.hasSelectedText());
}

TEST_F(DateControlViewTest, TakesADayOrDropsWhatIsNoneWhenTheFocusGoesButNotToAnotherWindow) {
    QString heard;
    QObject::connect(&date, &Control::LostFocus, &window, [&] { heard = Day(); });
    Type(u"010"_s);
    for (const QEvent::Type type : {QEvent::FocusOut, QEvent::FocusIn}) {
        QFocusEvent event(type, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(&field, &event);
    }
    Type(u"2"_s);
    other.setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(heard, u"2025-02-01"_s) << "the day is taken before the loss is told";

    date.SetFocus();
    Type(u"31.02.\r"_s);
    other.setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(field.text(), u"01.02.2025"_s);
    EXPECT_FALSE(LooksRefused());
    const QString notice = u"31.02. ist kein gültiges Datum. Es bleibt beim 01.02.2025."_s;
    EXPECT_TRUE(QTest::qWaitFor([&] { return field.toolTip() == notice; }));
}

TEST_F(DateControlViewTest, ChoosesInACalendar) {
    other.setFocus();
    QTest::mouseClick(field.findChild<QAbstractButton *>(), Qt::LeftButton);
    ASSERT_TRUE(Calendar());
    auto *days = Calendar()->findChild<QTableView *>();
    // Below the names of the weekdays; the first of November 2025 is a Saturday.
    const QPoint first = days->visualRect(days->model()->index(1, 5)).center();
    QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, first);
    EXPECT_TRUE(!Calendar() && Selects(u"01.11.2025"_s));

    Type(u"1.2.{Alt+Down}"_s);
    ASSERT_TRUE(Calendar());
    ::Type(QApplication::focusWidget(), u"{Right}{Down}{PgDown}\r"_s);
    EXPECT_TRUE(!Calendar() && Selects(u"09.03.2025"_s));
    Type(u"{F4}"_s);
    ASSERT_TRUE(Calendar());
    ::Type(QApplication::focusWidget(), u"{Right}\x1b"_s);
    EXPECT_TRUE(!Calendar() && Selects(u"09.03.2025"_s));
    EXPECT_EQ(Day(), u"2025-03-09"_s);
}

} // namespace
