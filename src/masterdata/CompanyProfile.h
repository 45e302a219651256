#pragma once

#include "platform/controls/TextField.h"
#include "platform/lists/ComboBox.h"

#include <QObject>

#include <memory>

class App;
class RecordSet;

/// The company's data, in controls that the user edits in place. Values are neither validated nor
/// trimmed. The report prints the current values of these controls, saved or not.
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
    /// The last three are read-only: the country has no rows to choose from and is hidden, the
    /// chart of accounts was chosen when the database was created, and the currency is fixed.
    ComboBox CountryCombo;
    ComboBox AccountFrameCombo;
    ComboBox CurrencyCombo;

    /// Fills the controls from the database and clears RecordChange. A failure is shown in a
    /// message and leaves the controls and RecordChange unchanged.
    void LoadFields();
    /// Writes the controls into the company's row; does not insert one. A failure is shown in a
    /// message and leaves the controls unchanged. RecordChange is not cleared in either case.
    void SaveFields();
    /// Returns whether a control has changed since the last LoadFields.
    bool RecordChange() const { return recordChange_; }

private:
    void MarkChanged() { recordChange_ = true; }
    /// Returns the company's row, or null. A failure is shown in a message.
    std::unique_ptr<RecordSet> SelectCompany();

    const App &app_;
    bool recordChange_ = false;
};
