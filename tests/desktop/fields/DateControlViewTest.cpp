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
    static QCalendarWidget *Calendar() { return qobject_cast<QCalendarWidget *>(QApplication::activePopupWidget()); }

    DateControl &date = window.entryRow.DateField;
    DateControlView &field = Find<DateControlView>(u"DateField"_s);
    QLineEdit &other = Find<QLineEdit>(u"NoteField"_s);
};

TEST_F(DateControlViewTest, AcceptsDatesAndMarksInvalidOnes) {
    for (const auto &key : {u"\t"_s, u"{Backtab}"_s, u"\r"_s, u"{Num+Enter}"_s}) {
        Reset();
        Type(u"31.02.2026"_s + key);
        EXPECT_TRUE(Selects(u"31.02.2026"_s) && IsMarkedInvalid());
        EXPECT_EQ(Day() + window.entryRow.ErrorLabel.Text(), u"2025-11-15"_s);
        EXPECT_EQ(field.accessibleDescription(), u"31.02.2026 ist kein gültiges Datum."_s);
        Type(u"2"_s);
        EXPECT_FALSE(IsMarkedInvalid());
        Type(key);
        EXPECT_EQ(field.text() + Day(), u"02.11.20252025-11-02"_s);
        EXPECT_EQ(field.hasFocus(), key != u"\t"_s && key != u"{Backtab}"_s);
        date.SetFocus();
        Type(u"31.2\x1b"_s);
        EXPECT_TRUE(Selects(u"02.11.2025"_s));
        window.entryRow.NewSale();
    }
    for (const auto &text : {u"10000-01-01"_s, u"100000-01-01"_s, u"1-2-26"_s, u"3. okt"_s}) {
        Reset();
        Type(text + u'\r');
        EXPECT_TRUE(IsMarkedInvalid()) << qPrintable(text);
        date.SetFocus();
        EXPECT_FALSE(IsMarkedInvalid());
    }
}

TEST_F(DateControlViewTest, StepsTheDateByKeys) {
    struct Case {
        QString keys, shown;
    };
    const Case cases[] = {{u"+"_s, u"16.11.2025"_s},       {u"{Num+-}"_s, u"14.11.2025"_s},
                          {u"30{Up}"_s, u"01.12.2025"_s},  {u"{Down}"_s, u"14.11.2025"_s},
                          {u"{PgUp}"_s, u"15.10.2025"_s},  {u"31.1.{PgDown}"_s, u"28.02.2025"_s},
                          {u"h"_s, u"15.03.2026"_s},       {u"t31.2{Shift+T}"_s, u"15.03.2026"_s},
                          {u"010126-"_s, u"31.12.2025"_s}, {u"2026-03-01-"_s, u"28.02.2026"_s}};
    for (const Case &each : cases) {
        Reset();
        Type(each.keys);
        EXPECT_TRUE(Selects(each.shown)) << qPrintable(each.keys + field.text());
        EXPECT_EQ(env.app.Locale().ShortDate(date.DateValue()), each.shown);
    }
}

TEST_F(DateControlViewTest, CommitsOrRevertsWhenTheFocusMovesToAnotherField) {
    QString dayOnLostFocus;
    QObject::connect(&date, &Control::LostFocus, &window, [&] { dayOnLostFocus = Day(); });
    Type(u"010"_s);
    for (const QEvent::Type type : {QEvent::FocusOut, QEvent::FocusIn}) {
        QFocusEvent event(type, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(&field, &event);
    }
    Type(u"2"_s);
    other.setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(dayOnLostFocus, u"2025-02-01"_s) << "the date is set before LostFocus is emitted";

    date.SetFocus();
    Type(u"31.02.\r"_s);
    other.setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(field.text(), u"01.02.2025"_s);
    EXPECT_EQ(date.Hint(), u"31.02. ist kein gültiges Datum. Es bleibt beim 01.02.2025."_s);
    EXPECT_TRUE(IsMarkedInvalid()) << "marked until the field gets the focus again";
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&field, &wheel);
    EXPECT_EQ(Day(), u"2025-02-01"_s) << "the wheel does not change a field without the focus";
    field.setFocus(Qt::TabFocusReason);
    other.setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(IsMarkedInvalid());
}

TEST_F(DateControlViewTest, ChoosesADateInTheCalendar) {
    other.setFocus();
    QTest::mouseClick(field.findChild<QAbstractButton *>(), Qt::LeftButton);
    ASSERT_TRUE(Calendar());
    auto *days = Calendar()->findChild<QTableView *>();
    EXPECT_EQ(days->accessibleName(), u"Tage"_s);
    // Row 0 shows the names of the weekdays; 1 November 2025 is a Saturday.
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
}
