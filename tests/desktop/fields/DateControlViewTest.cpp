#include "support/MainWindowTest.h"

#include <QBitmap>

/// The focused date field of the entry row, set to 15 November 2025; today is 15 March 2026.
class DateFieldTest : public MainWindowTest {
protected:
    DateFieldTest() {
        Open();
        Typed({});
    }
    /// Types into the field as it was set at first, and returns the selected text.
    QString Typed(const QString &keys) {
        date.SetDateValue(Date(QDate(2025, 11, 15)));
        date.SetFocus();
        Type(keys);
        return field.selectedText();
    }
    QString TurnWheel(int delta) {
        QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, delta}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&field, &wheel);
        return field.text();
    }
    static QWidget *Calendar() { return QApplication::activePopupWidget(); }

    DateControl &date = window.entryRow.DateField;
    QLineEdit &field = Find<QLineEdit>("DateField");
    QWidget &button = *field.findChild<QWidget *>();
    QLineEdit &other = Find<QLineEdit>("NoteField");
};

TEST_F(DateFieldTest, KeepsTheFocusUntilTheDateIsValid) {
    for (const QString key : {"\t", "{Backtab}", "\r"}) {
        EXPECT_EQ(Typed("31.02.2026" + key), "31.02.2026");
        EXPECT_NE(field.palette().base().color(), Qt::white);
        Type("2");
        EXPECT_EQ(field.palette().base().color(), Qt::white);
        Type(key);
        EXPECT_EQ(date.DateValue().SQLDate(), "2025-11-02");
        EXPECT_EQ(field.hasFocus(), key == "\r");
    }
}

TEST_F(DateFieldTest, RemovesTheMessageWithTheTextOnEscape) {
    EXPECT_EQ(Typed("31.02.\r\x1b"), "15.11.2025");
    EXPECT_EQ(field.accessibleDescription(), "");
}

TEST_F(DateFieldTest, StepsByKeysAndByTheWheelWhileFocused) {
    EXPECT_EQ(TurnWheel(60), "15.11.2025");
    EXPECT_EQ(TurnWheel(180), "17.11.2025");
    EXPECT_EQ(Typed("30{Up}"), "01.12.2025");
    EXPECT_EQ(Typed("{Num+-}"), "14.11.2025");
    EXPECT_EQ(Typed("{PgUp}"), "15.10.2025");
    EXPECT_EQ(Typed("31.1.{PgDown}"), "28.02.2025");
    EXPECT_EQ(Typed("t31.2{Shift+T}"), "15.03.2026");
    EXPECT_EQ(Typed("{Ctrl+T}"), "15.11.2025");
    EXPECT_EQ(Typed("010126-"), "31.12.2025");
    EXPECT_EQ(Typed("1-2-26\r"), "1-2-26");
    EXPECT_EQ(Typed("3. okt\r"), "3. okt");
    other.setFocus();
    EXPECT_EQ(TurnWheel(120), "15.11.2025");
}

TEST_F(DateFieldTest, CommitsOrRevertsWhenAnotherFieldGetsTheFocus) {
    QString text;
    QObject::connect(&date, &Control::LostFocus, &window, [&] { text = field.text(); });
    Type("010");
    for (const auto reason :
         {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
        QFocusEvent event(QEvent::FocusOut, reason);
        QApplication::sendEvent(&field, &event);
    }
    Type("2");
    other.setFocus();
    EXPECT_EQ(text, "01.02.2025") << "the date is set before LostFocus is emitted";
    Typed("31.02.");
    other.setFocus();
    EXPECT_EQ(field.text(), "15.11.2025");
    EXPECT_EQ(date.Hint(), "31.02. ist kein gültiges Datum. Es bleibt beim 15.11.2025.");
}

TEST_F(DateFieldTest, SelectsAllByTheClickThatFocusesIt) {
    other.setFocus();
    QTest::mousePress(&field, Qt::LeftButton, {}, {60, 9});
    QTest::mouseMove(&field, {20, 9});
    QTest::mouseRelease(&field, Qt::LeftButton, {}, {20, 9});
    EXPECT_EQ(field.selectedText(), "15.11.2025");
    QTest::mouseClick(&field, Qt::LeftButton, {}, {40, 9});
    EXPECT_EQ(field.selectedText(), "");
}

TEST_F(DateFieldTest, DrawsItsTextBesideTheCalendarButton) {
    Type("A text that is wider than the field{Ctrl+A}");
    const QRegion text = field.grab().createMaskFromColor(0x1f6aa5, Qt::MaskOutColor);
    const QRegion icon = button.grab().createMaskFromColor(0x606060, Qt::MaskOutColor);
    EXPECT_EQ(text.boundingRect().right(), button.x() - 1);
    EXPECT_EQ(icon.boundingRect(), QRect(1, 5, 9, 10));
    EXPECT_EQ(icon.rectCount(), 23) << "a frame around nine days";
}

TEST_F(DateFieldTest, ChoosesADateInTheCalendar) {
    QTest::mouseClick(&button, Qt::LeftButton);
    const auto &days = *Calendar()->findChild<QTableView *>();
    // Row 0 shows the names of the weekdays; 1 November 2025 is a Saturday.
    QTest::mouseClick(days.viewport(), Qt::LeftButton, {}, Centre(days, 1, 5));
    EXPECT_EQ(field.selectedText(), "01.11.2025");
    Type("1.2.{Alt+Down}{Right}{Down}{PgDown}\r");
    EXPECT_EQ(field.selectedText(), "09.03.2025");
    Type("{F4}{Right}");
    EXPECT_EQ(Calendar()->findChild<QWidget *>("Announcement")->accessibleName(),
              "Montag, 10. März 2025");
    Type("\x1b");
    EXPECT_FALSE(Calendar());
}

TEST_F(DateFieldTest, OpensTheCalendarOnTheScreenBelowOrAboveIt) {
    for (const QPoint corner : {QPoint(700, 0), {-60, 600}}) {
        view.move(corner);
        Type("{F4}");
        EXPECT_GE(Calendar()->x(), 0);
        EXPECT_LE(Calendar()->geometry().right(), 801); // With a frame of 2.
        EXPECT_EQ(Calendar()->y() < field.mapToGlobal(QPoint()).y(), corner.y() > 0);
        Calendar()->close();
    }
}
