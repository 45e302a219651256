#include "desktop/QtDesktop.h"

#include "platform/drawing/PrinterGraphics.h"
#include "support/ModalWindows.h"

#include <QDir>
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

TEST_F(QtDesktopTest, ClosesDialogsWithReturnAndEscape) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        EXPECT_TRUE(Press(key, [this] { desktop.MsgBox(u"<b>\r\nfehlt"_s); }).contains(u"<b>\nfehlt"_s));
        EXPECT_TRUE(Press(key, [this] { desktop.ShowAboutPanel(); }).contains(u"Über Zolmark"_s));
    }
}

TEST_F(QtDesktopTest, ShowsTheSaveDialogInGerman) {
    const SaveAsDialog dialog = {
        FolderItem(QDir::homePath()), u"Speichern als"_s, u"export"_s, {u"TXT-Datei"_s, u".txt"_s}, u"Text"_s};
    std::optional<FolderItem> chosen;
    const auto showDialog = [&] { chosen = desktop.ShowModal(dialog); };
    const QStringList texts = Press(Qt::Key_Return, showDialog);
    EXPECT_TRUE(texts.contains(u"Speichern als"_s) && texts.contains(u"S&peichern"_s));
    EXPECT_TRUE(chosen && chosen->Path() == QDir::home().filePath(u"export.txt"_s));
    Press(Qt::Key_Escape, showDialog);
    EXPECT_FALSE(chosen);
}

TEST_F(QtDesktopTest, PrintsToAFileWithoutAPrinter) {
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

/// Tests with their own xdg-open.
class ViewerTest : public QtDesktopTest {
protected:
    ViewerTest() { qputenv("PATH", tools.path().toUtf8()); }
    ~ViewerTest() override { qputenv("PATH", before); }
    Q_DISABLE_COPY_MOVE(ViewerTest)

    void Install(const QByteArray &opener) const {
        QFile file(tools.filePath(u"xdg-open"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(opener) == opener.size());
        ASSERT_TRUE(file.setPermissions(QFile::Permissions(0x7700)));
    }

    const QByteArray before = qgetenv("PATH");
    const QTemporaryDir tools;
};

TEST_F(ViewerTest, ReportsFilesAndAddressesThatCannotBeOpened) {
    for (const QByteArray &opener : {""_ba, "\1no program"_ba, "#!/no/such/interpreter\n"_ba}) {
        if (!opener.isEmpty()) { Install(opener); }
        const auto open = [this] {
            desktop.ShowURL(u"https://zolmark.example/"_s);
            desktop.Launch(FolderItem(tools.path()));
            desktop.Launch(FolderItem(u"/no/manual.pdf"_s)); // No message for a missing file.
        };
        const QStringList texts = Press(Qt::Key_Return, open, 2).filter(u" kann nicht geöffnet werden"_s);
        EXPECT_EQ(texts.size(), 2) << opener.data();
        EXPECT_EQ(texts.filter(u"https://zolmark.example/"_s).size(), 1) << opener.data();
        EXPECT_EQ(texts.filter(tools.path()).size(), 1) << opener.data();
    }
}

TEST_F(ViewerTest, StartsTheViewerDetached) {
    Install("#!/bin/sh\necho $PPID \"$1\" > \"$0.log\"\n");
    desktop.Launch(FolderItem(tools.path()));
    QFile log(tools.filePath(u"xdg-open.log"_s));
    ASSERT_TRUE(QTest::qWaitFor([&log] { return log.size() > 0; }));
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    const QStringList line = QString::fromUtf8(log.readAll()).trimmed().split(u' ');
    EXPECT_EQ(line.value(1), u"file://"_s + tools.path());
    EXPECT_NE(line.value(0), QString::number(QCoreApplication::applicationPid()))
        << "a child process would end with the program";
}
