#include "shell/qt/QtDesktop.h"

#include "platform/PrinterGraphics.h"
#include "platform/SaveAsDialog.h"
#include "support/GoogleTest.h"
#include "support/ModalWindows.h"

#include <QDir>
#include <QFileDialog>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The desktop that the program runs on, with a window of the program in front.
class QtDesktopTest : public testing::Test {
protected:
    QtDesktopTest() {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    /// Presses a key in every window that the action opens.
    template <typename Action>
    void Press(Qt::Key key, const Action &action) {
        AnswerModalWindows(action, [&](QWidget &box) {
            titles.append(box.windowTitle());
            EXPECT_EQ(box.parentWidget(), &window);
            for (const QWidget *child : box.findChildren<QWidget *>()) {
                texts.append(child->property("text").toString());
            }
            QTest::keyClick(&box, key);
        });
    }

    QWidget window;
    QtDesktop desktop;
    QStringList titles;
    QStringList texts;
};

TEST_F(QtDesktopTest, ClosesItsBoxesByReturnAndEscape) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        Press(key, [this] { desktop.MsgBox(u"<b>\r\nfehlt"_s); });
        Press(key, [this] { desktop.ShowAboutPanel(); });
    }
    EXPECT_EQ(titles.mid(2), QStringList({u"Zolmark"_s, u"Über Zolmark"_s}));
    EXPECT_TRUE(texts.contains(u"<b>\nfehlt"_s));
}

TEST_F(QtDesktopTest, AsksForANewFileInGerman) {
    const SaveAsDialog dialog = {.initialDirectory = FolderItem(QDir::homePath()),
                                 .promptText = u"Speichern als"_s,
                                 .suggestedFileName = u"export"_s,
                                 .filter = {u"TXT-Datei"_s, u".txt"_s},
                                 .title = u"Text Output"_s};
    std::optional<FolderItem> chosen;
    Press(Qt::Key_Return, [&] { chosen = desktop.ShowModal(dialog); });
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->Path(), QDir::home().filePath(u"export.txt"_s));
    Press(Qt::Key_Escape, [&] { chosen = desktop.ShowModal(dialog); });
    EXPECT_FALSE(chosen);
    EXPECT_EQ(titles, QStringList({u"Text Output"_s, u"Text Output"_s}));
    EXPECT_TRUE(texts.contains(u"Speichern als"_s) && texts.contains(u"S&peichern"_s));
}

TEST_F(QtDesktopTest, PrintsIntoAFileWithoutAPrinter) {
    const FolderItem file(QDir::home().filePath(u"Bericht.pdf"_s));
    Press(Qt::Key_Escape, [this] { EXPECT_FALSE(desktop.OpenPrinterDialog(u"Bericht"_s)); });
    EXPECT_FALSE(file.Exists());
    Press(Qt::Key_Return, [this] {
        const auto paper = desktop.OpenPrinterDialog(u"Bericht"_s);
        ASSERT_TRUE(paper);
        EXPECT_EQ(qRound(paper->Height()), 842);
        paper->DrawString(u"Zeile"_s, 40, 40);
    });
    EXPECT_EQ(titles, QStringList({u"Drucken"_s, u"Drucken"_s}));
    EXPECT_TRUE(file.Delete());
}

} // namespace
