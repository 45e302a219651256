#include "endurance/Program.h"

using namespace Qt::StringLiterals;

Program::Program(FakeDesktop &desktop)
    : app(desktop, UserLocale(QLocale(QLocale::German, QLocale::Germany))) {
    QObject::connect(&welcome, &WelcomeWindow::MainWindowWanted, &welcome, [this] {
        window.emplace(app);
        window->Event_Open();
    });
    welcome.Event_Open();
    if (!window) {
        welcome.CompanyField.SetText(u"Holz"_s);
        welcome.AccountsPopup.SetListIndex(1);
        welcome.SaveButton.Press();
    }
}

void Program::Submit(const QString &number, const QString &amount, int times) {
    EntryRow &row = window->entryRow;
    row.InputField.SetText(amount);
    row.pickLists.CategoryCombo.SetListIndex(0);
    row.SaleNumberField.SetText(number);
    row.NoteField.SetText(number.repeated(times));
    row.SubmitButton.Press();
}

void Program::Change(const QString &amount) {
    window->MenuAction(u"edit"_s);
    window->entryRow.InputField.SetText(amount);
    window->entryRow.ChangeButton.Press();
}

QString Program::Line(const QString &number, const QString &amount, int times) {
    return u"%1|E|%2|%2|%3"_s.arg(number, amount).arg(number.size() * times);
}

QStringList Program::Lines(const QString &sql) const {
    QStringList lines;
    const auto records = app.kvoDB().SQLSelect(sql);
    for (; records && !records->AtEnd(); records->MoveNext()) {
        lines.append(records->IdxField(1).StringValue());
    }
    EXPECT_EQ(app.kvoDB().ErrorMessage(), QString());
    return lines;
}

QStringList Program::Stored() const {
    QStringList lines = Lines(
        u"SELECT CASE WHEN replace(note, salesnumber, '') = '' AND vdate || tax || category || "
        "cashbookID || bdate || account > '' THEN salesnumber || '|' || type || '|' || "
        "printf('%.2f', amount) || '|' || input || '|' || length(note) ELSE 'half' END "
        "FROM cash_journal"_s);
    lines.sort();
    return lines;
}

bool Program::IsSound() const {
    // Only later versions of the engine know the second one, which names what is wrong.
    return Lines(u"PRAGMA integrity_check"_s) == QStringList(u"ok"_s) &&
           Lines(u"PRAGMA cipher_integrity_check"_s).isEmpty();
}
