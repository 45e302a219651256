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
        EXPECT_TRUE(Press(key, [this] { desktop.MsgBox("<b>\r\nfehlt"); }).contains("<b>\nfehlt"));
        EXPECT_TRUE(Press(key, [this] { desktop.ShowAboutPanel(); }).contains("Über Zolmark"));
    }
}

TEST_F(QtDesktopTest, ShowsTheSaveDialogInGerman) {
    const SaveAsDialog dialog = {
        FolderItem(QDir::homePath()), "Speichern als", "export", {"TXT-Datei", ".txt"}, "Text"};
    std::optional<FolderItem> chosen;
    const auto showDialog = [&] { chosen = desktop.ShowModal(dialog); };
    const QStringList texts = Press(Qt::Key_Return, showDialog);
    EXPECT_TRUE(texts.contains("Speichern als") && texts.contains("S&peichern"));
    EXPECT_TRUE(chosen && chosen->Path() == QDir::home().filePath("export.txt"));
    Press(Qt::Key_Escape, showDialog);
    EXPECT_FALSE(chosen);
}

TEST_F(QtDesktopTest, PrintsToAFileWithoutAPrinter) {
    const FolderItem file(QDir::home().filePath("Bericht.pdf"));
    Press(Qt::Key_Escape, [this] { EXPECT_FALSE(desktop.OpenPrinterDialog("Bericht", {})); });
    Press(Qt::Key_Return, [this] { EXPECT_TRUE(desktop.OpenPrinterDialog("Bericht", {})); });
    EXPECT_TRUE(file.Delete());
}

TEST_F(QtDesktopTest, IgnoresARelativeDataFolder) {
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    EXPECT_EQ(desktop.ApplicationData().Path(), QString::fromUtf8(before));
    qputenv("XDG_DATA_HOME", "data");
    EXPECT_EQ(desktop.ApplicationData().Path(), QDir::home().filePath(".local/share"));
    qputenv("XDG_DATA_HOME", before);
}

/// Tests with their own xdg-open.
class ViewerTest : public QtDesktopTest {
protected:
    ViewerTest() { qputenv("PATH", tools.path().toUtf8()); }
    ~ViewerTest() override { qputenv("PATH", before); }
    Q_DISABLE_COPY_MOVE(ViewerTest)

    void Install(const QByteArray &opener) const {
        QFile file(tools.filePath("xdg-open"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(opener) == opener.size());
        ASSERT_TRUE(file.setPermissions(QFile::Permissions(0x7700)));
    }

    const QByteArray before = qgetenv("PATH");
    const QTemporaryDir tools;
};

TEST_F(ViewerTest, ReportsFilesAndAddressesThatCannotBeOpened) {
    for (const QByteArray &opener : {""_ba, "\1no program"_ba, "#!/no/such/interpreter\n"_ba}) {
        if (!opener.isEmpty()) {
            Install(opener);
        }
        const auto open = [this] {
            desktop.ShowURL("https://zolmark.example/");
            desktop.Launch(FolderItem(tools.path()));
            desktop.Launch(FolderItem("/no/manual.pdf")); // No message for a missing file.
        };
        const QStringList texts =
            Press(Qt::Key_Return, open, 2).filter(" kann nicht geöffnet werden");
        EXPECT_EQ(texts.size(), 2) << opener.data();
        EXPECT_EQ(texts.filter("https://zolmark.example/").size(), 1) << opener.data();
        EXPECT_EQ(texts.filter(tools.path()).size(), 1) << opener.data();
    }
}

TEST_F(ViewerTest, StartsTheViewerDetached) {
    Install("#!/bin/sh\necho $PPID \"$1\" > \"$0.log\"\n");
    desktop.Launch(FolderItem(tools.path()));
    QFile log(tools.filePath("xdg-open.log"));
    ASSERT_TRUE(QTest::qWaitFor([&log] { return log.size() > 0; }));
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    const QStringList line = QString::fromUtf8(log.readAll()).trimmed().split(u' ');
    EXPECT_EQ(line.value(1), "file://" + tools.path());
    EXPECT_NE(line.value(0), QString::number(QCoreApplication::applicationPid()))
        << "a child process would end with the program";
}
