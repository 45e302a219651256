#include "support/TestEnvironment.h"

TEST(CompanyProfile, WritesEachFieldOnlyToItsColumn) {
    const TestEnvironment env(TestEnvironment::Storage::File);
    CompanyProfile profile(env.app);
    int typed = 0;
    for (TextField *field :
         {&profile.CompanyField, &profile.DepartmentField, &profile.FirstnameField,
          &profile.LastnameField, &profile.StreetField, &profile.ZipField, &profile.CityField,
          &profile.PhoneField, &profile.FaxField, &profile.EMailField, &profile.HomepageField,
          &profile.UIDField}) {
        profile.LoadFields();
        EXPECT_FALSE(profile.RecordChange());
        field->SetText(QString::number(++typed));
        EXPECT_TRUE(profile.RecordChange());
        profile.SaveFields();
    }
    EXPECT_EQ(ReadWithShell(env.app, "SELECT * FROM core_company"),
              "1|1|2|3|4|5|6|7|||8|9|10|11|12||||SKR-03|||");
    EXPECT_EQ(profile.AccountFrameCombo.Text(), "SKR-03");
    EXPECT_EQ(profile.CurrencyCombo.Text(), "EUR");
}

TEST(CompanyProfile, ReportsAFailedUpdate) {
    TestEnvironment env;
    CompanyProfile profile(env.app);
    env.Run("CREATE TRIGGER t UPDATE ON core_company BEGIN SELECT RAISE(FAIL, 'nein'); END");
    profile.SaveFields();
    EXPECT_EQ(env.desktop.TakeMessages(), "DB Error: nein");
}
