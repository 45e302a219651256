#include "desktop/QtDesktop.h"

#include "platform/drawing/PrinterGraphics.h"
#include "platform/outside/SaveAsDialog.h"
#include "support/GoogleTest.h"
#include "support/ModalWindows.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// The desktop that the program runs on, with a window of the program in front.
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
        const auto message = [this] { desktop.MsgBox(u"<b>\r\nfehlt"_s); };
        EXPECT_TRUE(Press(key, message).contains(u"<b>\nfehlt"_s));
        EXPECT_EQ(Press(key, [this] { desktop.ShowAboutPanel(); })[0], u"Über Zolmark"_s);
    }
}

TEST_F(QtDesktopTest, AsksForANewFileInGerman) {
    const SaveAsDialog dialog = {.initialDirectory = FolderItem(QDir::homePath()),
                                 .promptText = u"Speichern als"_s,
                                 .suggestedFileName = u"export"_s,
                                 .filter = {u"TXT-Datei"_s, u".txt"_s},
                                 .title = u"Text Output"_s};
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
    EXPECT_FALSE(file.Exists());
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
        // What can't be run is not there.
        opener.setPermissions(each.opener.isEmpty() ? QFile::ReadOwner
                                                    : QFile::Permissions(0x7700));
        opener.close();
        const QStringList texts = Press(Qt::Key_Return, [this, &tools] {
            desktop.ShowURL(u"https://zolmark.example/"_s);
            desktop.Launch(FolderItem(tools.path()));
            desktop.Launch(FolderItem(u"/no/manual.pdf"_s)); // What is missing is not told.
            EXPECT_TRUE(QTest::qWaitFor([] { return !qApp->findChild<QProcess *>(); }));
        });
        EXPECT_EQ(texts.filter(u" kann nicht geöffnet werden"_s).size(), each.tells ? 2 : 0);
        EXPECT_TRUE(opener.remove());
    }
    qputenv("PATH", before);
}

} // namespace
