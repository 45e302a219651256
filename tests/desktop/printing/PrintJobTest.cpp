#include "desktop/printing/PrintJob.h"

#include "support/FullDisk.h"
#include "support/GoogleTest.h"

#include <QCoreApplication>
#include <QImage>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

class PrintJobTest : public testing::Test {
protected:
    using SetUp = std::function<void(QPrinter &)>;

    std::unique_ptr<PrintJob> Begin(const SetUp &setUp = [](QPrinter &) {}) {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFileName(path);
        printer->setPageSize(QPageSize(QPageSize::A4));
        setUp(*printer);
        return std::make_unique<PrintJob>(std::move(printer), openBook, [this](const QString &) { ++failures; });
    }
    /// Prints three pages into a PDF file, each with the height of its text, and reads it.
    QStringList Print(const SetUp &setUp = [](QPrinter &) {}) {
        auto job = Begin(setUp);
        job->SetTextFont(u"Courier"_s);
        job->SetTextSize(10);
        job->DrawString(u"100"_s, 40, 100);
        job->NextPage();
        job->DrawString(u"838"_s, 40, 838);
        job->NextPage();
        job->DrawString(u"900"_s, 40, 900);
        job.reset();
        EXPECT_EQ(failures, told) << "not before the event loop comes round";
        QCoreApplication::processEvents();
        told = failures;
        return Read();
    }
    /// What a tool of poppler's makes of the file.
    QByteArray Ask(const QString &tool, const QStringList &arguments) const {
        QProcess process;
        process.start(tool, arguments);
        EXPECT_TRUE(process.waitForFinished());
        return process.readAllStandardOutput();
    }
    /// The points of the left, the right and the bottom of each word, and the word.
    QStringList Read() const {
        static const QRegularExpression word(u"xMin=\"(\\d+).*xMax=\"(\\d+).*yMax=\"(\\d+).*>(.*)<"_s);
        QStringList found;
        const auto xml = QString::fromUtf8(Ask(u"pdftotext"_s, {u"-bbox"_s, path, u"-"_s}));
        for (const QRegularExpressionMatch &each : word.globalMatch(xml)) {
            found.append(each.capturedTexts().mid(1).join(u' '));
        }
        return found;
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"report.pdf"_s);
    std::optional<FolderItem> openBook;
    int failures = 0;
    int told = 0;
};

TEST_F(PrintJobTest, PrintsTheWantedPagesInPointsAndScalesDownWhatWouldRunOffThePaper) {
    struct Case {
        const char *wanted;
        SetUp setUp;
        QStringList printed;
    };
    // The letters of a typewriter are six tenths of their height wide.
    const QString first = u"40 58 103 100"_s;
    const QString second = u"40 58 841 838"_s;
    const QString third = u"37 54 841 900"_s;
    const auto twice = [](QPrinter &printer) {
        printer.setFromTo(1, 2);
        printer.setCopyCount(2);
    };
    const Case cases[] = {{"all", [](QPrinter & /*printer*/) {}, {first, second, third}},
                          {"two copies of two pages", twice, {first, second, first, second}},
                          {"page by page",
                           [&twice](QPrinter &printer) {
                               twice(printer);
                               printer.setCollateCopies(false);
                           },
                           {first, first, second, second}},
                          {"the last page first",
                           [](QPrinter &printer) { printer.setPageOrder(QPrinter::LastPageFirst); },
                           {third, second, first}}};
    for (const Case &each : cases) { EXPECT_EQ(Print(each.setUp), each.printed) << each.wanted; }
}

TEST_F(PrintJobTest, DrawsLinesInTheirColourAndTextAsOneLineInItsFace) {
    auto job = Begin();
    EXPECT_EQ(QSizeF(job->Width(), job->Height()).toSize(), QSize(595, 842));
    job->SetForeColor(Color{0xff0000});
    job->DrawLine(100, 200, 150, 200);
    job->SetTextFont(u"Courier"_s);
    job->SetTextSize(20);
    job->SetBold(true);
    EXPECT_NEAR(job->TextHeight(), 24, 6);
    job->DrawString(u"ii\ni"_s, 300, 200);
    job.reset();
    const auto page = QImage::fromData(Ask(u"pdftoppm"_s, {u"-r"_s, u"72"_s, u"-png"_s, path}));
    EXPECT_EQ(page.pixelColor(125, 200), QColor(Qt::red));
    EXPECT_EQ(Read().replaceInStrings(QRegularExpression(u".* "_s), {}), QStringList({u"ii"_s, u"i"_s}));
    EXPECT_TRUE(Ask(u"pdffonts"_s, {path}).contains("Bold"));
}

TEST_F(PrintJobTest, TellsWhatCouldNotBePrintedAndLeavesTheFileBefore) {
    const QStringList before = Print([](QPrinter &printer) { printer.setFromTo(1, 1); });
    EXPECT_EQ(Print([](QPrinter &printer) { printer.setFromTo(4, 9); }), before);
    {
        const FullDisk disk(2000);
        Print();
    }
    openBook = FolderItem(folder.path() + u"/./report.pdf"_s);
    Print();
    EXPECT_EQ(failures, 3);
    EXPECT_EQ(Read(), before);
}
