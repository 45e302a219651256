#include "desktop/fields/DateControlView.h"

#include "support/MainWindowTest.h"

/// The focused date field of the entry row, set to 15 November 2025; today is 15 March 2026.
class DateControlViewTest : public MainWindowTest {
protected:
    DateControlViewTest() {
        Open();
        Reset();
    }
    void Reset() {
        date.SetDateValue(Date(QDate(2025, 11, 15)));
        date.SetFocus();
    }
    void Type(const QString &text) { ::Type(&field, text); }
    QString Day() const { return date.DateValue().SQLDate(); }
    bool Selects(const QString &text) const {
        return field.hasFocus() && field.text() == text && field.selectedText() == text;
    }
    bool IsMarkedInvalid() const { return field.palette().color(QPalette::Base) != Qt::white; }
    static QCalendarWidget *Calendar() {
        return qobject_cast<QCalendarWidget *>(QApplication::activePopupWidget());
    }

    DateControl &date = window.entryRow.DateField;
    DateControlView &field = Find<DateControlView>("DateField");
    QLineEdit &other = Find<QLineEdit>("NoteField");
};

TEST_F(DateControlViewTest, AcceptsDatesAndMarksInvalidOnes) {
    for (const QString key : {"\t", "{Backtab}", "\r", "{Num+Enter}"}) {
        Reset();
        Type("31.02.2026" + key);
        EXPECT_TRUE(Selects("31.02.2026") && IsMarkedInvalid());
        EXPECT_EQ(Day() + window.entryRow.ErrorLabel.Text(), "2025-11-15");
        EXPECT_EQ(field.accessibleDescription(), "31.02.2026 ist kein gültiges Datum.");
        Type("2");
        EXPECT_FALSE(IsMarkedInvalid());
        Type(key);
        EXPECT_EQ(field.text() + Day(), "02.11.20252025-11-02");
        EXPECT_EQ(field.hasFocus(), key != "\t" && key != "{Backtab}");
        date.SetFocus();
        Type("31.2\x1b");
        EXPECT_TRUE(Selects("02.11.2025"));
        window.entryRow.NewSale();
    }
    for (const QString text : {"10000-01-01", "100000-01-01", "1-2-26", "3. okt"}) {
        Reset();
        Type(text + u'\r');
        EXPECT_TRUE(IsMarkedInvalid()) << text;
        date.SetFocus();
        EXPECT_FALSE(IsMarkedInvalid());
    }
}

TEST_F(DateControlViewTest, StepsTheDateByKeys) {
    struct Case {
        QString keys, shown;
    };
    const Case cases[] = {{"+", "16.11.2025"},       {"{Num+-}", "14.11.2025"},
                          {"30{Up}", "01.12.2025"},  {"{Down}", "14.11.2025"},
                          {"{PgUp}", "15.10.2025"},  {"31.1.{PgDown}", "28.02.2025"},
                          {"h", "15.03.2026"},       {"t31.2{Shift+T}", "15.03.2026"},
                          {"010126-", "31.12.2025"}, {"2026-03-01-", "28.02.2026"}};
    for (const Case &each : cases) {
        Reset();
        Type(each.keys);
        EXPECT_TRUE(Selects(each.shown)) << each.keys + field.text();
        EXPECT_EQ(env.app.Locale().ShortDate(date.DateValue()), each.shown);
    }
}

TEST_F(DateControlViewTest, CommitsOrRevertsWhenTheFocusMovesToAnotherField) {
    QString dayOnLostFocus;
    QObject::connect(&date, &Control::LostFocus, &window, [&] { dayOnLostFocus = Day(); });
    Type("010");
    for (const QEvent::Type type : {QEvent::FocusOut, QEvent::FocusIn}) {
        QFocusEvent event(type, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(&field, &event);
    }
    Type("2");
    other.setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(dayOnLostFocus, "2025-02-01") << "the date is set before LostFocus is emitted";

    date.SetFocus();
    Type("31.02.\r");
    other.setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(field.text(), "01.02.2025");
    EXPECT_EQ(date.Hint(), "31.02. ist kein gültiges Datum. Es bleibt beim 01.02.2025.");
    EXPECT_TRUE(IsMarkedInvalid()) << "marked until the field gets the focus again";
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&field, &wheel);
    EXPECT_EQ(Day(), "2025-02-01") << "the wheel does not change a field without the focus";
    field.setFocus(Qt::TabFocusReason);
    other.setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(IsMarkedInvalid());
}

TEST_F(DateControlViewTest, ChoosesADateInTheCalendar) {
    other.setFocus();
    QTest::mouseClick(field.findChild<QAbstractButton *>(), Qt::LeftButton);
    ASSERT_TRUE(Calendar());
    auto *days = Calendar()->findChild<QTableView *>();
    EXPECT_EQ(days->accessibleName(), "Tage");
    // Row 0 shows the names of the weekdays; 1 November 2025 is a Saturday.
    const QPoint first = days->visualRect(days->model()->index(1, 5)).center();
    QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, first);
    EXPECT_TRUE(!Calendar() && Selects("01.11.2025"));

    Type("1.2.{Alt+Down}");
    ASSERT_TRUE(Calendar());
    ::Type(QApplication::focusWidget(), "{Right}{Down}{PgDown}\r");
    EXPECT_TRUE(!Calendar() && Selects("09.03.2025"));
    Type("{F4}");
    ASSERT_TRUE(Calendar());
    ::Type(QApplication::focusWidget(), "{Right}\x1b");
    EXPECT_TRUE(!Calendar() && Selects("09.03.2025"));
}
