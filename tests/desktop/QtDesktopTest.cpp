#include "desktop/QtDesktop.h"

#include "platform/drawing/PrinterGraphics.h"
#include "platform/outside/SaveAsDialog.h"
#include "support/ModalWindows.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

class QtDesktopTest : public testing::Test {
protected:
    QtDesktopTest() {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QWidget window;
    QtDesktop desktop;
};

TEST_F(QtDesktopTest, ClosesItsBoxesByReturnAndEscape) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        EXPECT_TRUE(Press(key, [this] { desktop.MsgBox(u"<b>\r\nfehlt"_s); }).contains(u"<b>\nfehlt"_s));
        EXPECT_TRUE(Press(key, [this] { desktop.ShowAboutPanel(); }).contains(u"Über Zolmark"_s));
    }
}

TEST_F(QtDesktopTest, AsksForANewFileInGerman) {
    const SaveAsDialog dialog = {
        FolderItem(QDir::homePath()), u"Speichern als"_s, u"export"_s, {u"TXT-Datei"_s, u".txt"_s}, u"Text"_s};
    std::optional<FolderItem> chosen;
    const auto ask = [&] { chosen = desktop.ShowModal(dialog); };
    const QStringList texts = Press(Qt::Key_Return, ask);
    EXPECT_TRUE(texts.contains(u"Speichern als"_s) && texts.contains(u"S&peichern"_s));
    EXPECT_TRUE(chosen && chosen->Path() == QDir::home().filePath(u"export.txt"_s));
    Press(Qt::Key_Escape, ask);
    EXPECT_FALSE(chosen);
}

TEST_F(QtDesktopTest, PrintsIntoAFileWithoutAPrinter) {
    const FolderItem file(QDir::home().filePath(u"Bericht.pdf"_s));
    Press(Qt::Key_Escape, [this] { EXPECT_FALSE(desktop.OpenPrinterDialog(u"Bericht"_s, {})); });
    Press(Qt::Key_Return, [this] { EXPECT_TRUE(desktop.OpenPrinterDialog(u"Bericht"_s, {})); });
    EXPECT_TRUE(file.Delete());
}

TEST_F(QtDesktopTest, IgnoresARelativeDataFolder) {
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    EXPECT_EQ(desktop.ApplicationData().Path(), QString::fromUtf8(before));
    qputenv("XDG_DATA_HOME", "data");
    EXPECT_EQ(desktop.ApplicationData().Path(), QDir::home().filePath(u".local/share"_s));
    qputenv("XDG_DATA_HOME", before);
}

TEST_F(QtDesktopTest, SaysWhatTheDesktopCannotOpen) {
    struct Case {
        QByteArray opener;
        bool tells;
    };
    const QByteArray before = qgetenv("PATH");
    const QTemporaryDir tools;
    qputenv("PATH", tools.path().toUtf8());
    for (const Case &each : {Case{"", true}, Case{"exit 3", true}, Case{"exit 0", false}}) {
        QFile opener(tools.filePath(u"xdg-open"_s));
        EXPECT_TRUE(opener.open(QIODevice::WriteOnly) && opener.write("#!/bin/sh\n" + each.opener));
        opener.setPermissions(each.opener.isEmpty() ? QFile::ReadOwner : QFile::Permissions(0x7700));
        opener.close();
        const auto open = [this, &tools] {
            desktop.ShowURL(u"https://zolmark.example/"_s);
            desktop.Launch(FolderItem(tools.path()));
            desktop.Launch(FolderItem(u"/no/manual.pdf"_s)); // What is missing is not told.
            EXPECT_TRUE(QTest::qWaitFor([] { return !qApp->findChild<QProcess *>(); }));
        };
        const int told = each.tells ? 2 : 0;
        EXPECT_EQ(Press(Qt::Key_Return, open, told).filter(u" kann nicht geöffnet werden"_s).size(), told);
        EXPECT_TRUE(opener.remove());
    }
    qputenv("PATH", before);
}
