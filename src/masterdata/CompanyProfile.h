#pragma once

#include "platform/controls/TextField.h"
#include "platform/lists/ComboBox.h"

#include <QObject>

#include <memory>

class App;
class RecordSet;

/// The company of the book, in controls that the user edits in place. Nothing is checked or
/// trimmed. What prints the company reads these controls, saved or not.
class CompanyProfile : public QObject {
    Q_OBJECT

public:
    explicit CompanyProfile(const App &app);

    TextField CompanyField;
    TextField DepartmentField;
    TextField FirstnameField;
    TextField LastnameField;
    TextField StreetField;
    TextField ZipField;
    TextField CityField;
    TextField PhoneField;
    TextField FaxField;
    TextField EMailField;
    TextField HomepageField;
    TextField UIDField;
    /// The last three are shown and never written: the country has no rows to choose from and is
    /// hidden, the chart of accounts was chosen when the book was made, and the currency is fixed.
    ComboBox CountryCombo;
    ComboBox AccountFrameCombo;
    ComboBox CurrencyCombo;

    /// Fills the controls from the book and clears RecordChange. If that fails it tells the user,
    /// and the controls and RecordChange stay as they were.
    void LoadFields();
    /// Writes the controls into the book's one company; it never adds one. A failure is told, and
    /// leaves the controls. RecordChange stays in any case.
    void SaveFields();
    /// Whether a control has changed since the last LoadFields.
    bool RecordChange() const { return recordChange_; }

private:
    void MarkChanged();
    /// The company; nothing after a failure, which has been told.
    std::unique_ptr<RecordSet> SelectCompany();

    const App &app_;
    bool recordChange_ = false;
};
