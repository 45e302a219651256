#include "desktop/printing/PrintJob.h"

#include "support/FullDisk.h"
#include "support/GoogleTest.h"

#include <QCoreApplication>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

class PrintJobTest : public testing::Test {
protected:
    /// Prints three pages into a PDF file, each with the height of its text, and reads it.
    QString Print(const std::function<void(QPrinter &)> &setUp = [](QPrinter &) {}) {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFileName(path);
        printer->setPageSize(QPageSize(QPageSize::A4));
        setUp(*printer);
        auto job = std::make_unique<PrintJob>(std::move(printer), openBook,
                                              [this](const QString &) { ++failures; });
        job->SetTextFont(u"Courier"_s);
        job->SetTextSize(10);
        job->DrawString(u"100"_s, 40, 100);
        job->NextPage();
        job->DrawString(u"838"_s, 40, 838);
        job->NextPage();
        job->DrawString(u"900"_s, 40, 900);
        job.reset();
        QCoreApplication::processEvents(); // A failure is told afterwards.
        return Read();
    }

    /// What poppler's reader finds: the points of the left and the bottom, and the text.
    QString Read() const {
        QProcess reader;
        reader.start(u"pdftotext"_s, {u"-bbox"_s, path, u"-"_s});
        EXPECT_TRUE(reader.waitForFinished());
        static const QRegularExpression word(u"xMin=\"(\\d+).*yMax=\"(\\d+).*>(.*)<"_s);
        QStringList found;
        const QString xml = QString::fromUtf8(reader.readAllStandardOutput());
        for (const QRegularExpressionMatch &each : word.globalMatch(xml)) {
            found.append(each.capturedTexts().mid(1).join(u' '));
        }
        return found.join(u'|');
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"report.pdf"_s);
    std::optional<FolderItem> openBook;
    int failures = 0;
};

TEST_F(PrintJobTest, PrintsTheWantedPagesInPointsAndScalesDownWhatWouldRunOffThePaper) {
    EXPECT_EQ(Print(), u"40 103 100|40 841 838|37 841 900"_s);
    EXPECT_EQ(Print([](QPrinter &printer) {
                  printer.setFromTo(1, 2);
                  printer.setCopyCount(2);
              }),
              u"40 103 100|40 841 838|40 103 100|40 841 838"_s);
    EXPECT_EQ(failures, 0);
}

TEST_F(PrintJobTest, TellsWhatCouldNotBePrintedAndLeavesTheFileBefore) {
    const QString before = Print([](QPrinter &printer) { printer.setFromTo(1, 1); });
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

} // namespace
