#include "shell/qt/PrintJob.h"

#include "support/FullDisk.h"
#include "support/GoogleTest.h"

#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// Prints into PDF files in a folder of its own.
class PrintJobTest : public testing::Test {
protected:
    /// Draws a page for each height, with one word whose baseline stands there.
    void Print(const std::function<void(QPrinter &)> &setUp, const std::vector<int> &heights) {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFileName(path);
        printer->setPageSize(QPageSize(QPageSize::A4));
        setUp(*printer);
        PrintJob job(std::move(printer), [this](const QString &text) { failures.append(text); });
        job.SetTextFont(u"Courier"_s);
        job.SetTextSize(10);
        for (const int height : heights) {
            if (height != heights.front()) {
                job.NextPage();
            }
            job.DrawString(u"Zeile%1\nä"_s.arg(height), 40, height);
        }
    }
    /// What poppler's reader finds: on each page the words and the points of their left and bottom.
    QString Read() const {
        QProcess reader;
        reader.start(u"pdftotext"_s, {u"-bbox"_s, path, u"-"_s});
        EXPECT_TRUE(reader.waitForFinished());
        static const QRegularExpression word(
            u"<page|xMin=\"([\\d.]+)\".*yMax=\"([\\d.]+)\">(.*)<"_s);
        QStringList found;
        const QString xml = QString::fromUtf8(reader.readAllStandardOutput());
        for (auto match = word.globalMatch(xml); match.hasNext();) {
            const QRegularExpressionMatch each = match.next();
            found.append(each.captured(3).isEmpty()
                             ? u"|"_s
                             : u"%1 %2 %3"_s.arg(each.captured(3))
                                   .arg(qRound(each.captured(1).toDouble()))
                                   .arg(qRound(each.captured(2).toDouble())));
        }
        return found.join(u' ');
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"report.pdf"_s);
    QStringList failures;
};

TEST_F(PrintJobTest, PrintsInPointsAndScalesDownWhatWouldRunOffThePaper) {
    Print([](QPrinter &) {}, {100, 838, 900});
    EXPECT_EQ(Read(), u"| Zeile100 40 103 ä 94 103 | Zeile838 40 841 ä 94 841 "
                      "| Zeile900 37 842 ä 88 842"_s);
    Print([](QPrinter &printer) { printer.setPageOrientation(QPageLayout::Landscape); }, {838});
    EXPECT_EQ(Read(), u"| Zeile838 28 595 ä 67 595"_s);
    EXPECT_EQ(failures, QStringList());
}

TEST_F(PrintJobTest, PrintsTheWantedPagesInTheWantedOrderAndNumber) {
    const auto print = [this](const std::function<void(QPrinter &)> &setUp) {
        Print(setUp, {100, 200, 300});
        static const QRegularExpression rest(u"[^|]*Zeile(\\d)\\S*[^|]*"_s);
        return Read().replace(rest, u"\\1"_s);
    };
    EXPECT_EQ(print([](QPrinter &printer) { printer.setFromTo(2, 3); }), u"|2|3"_s);
    EXPECT_EQ(print([](QPrinter &printer) {
                  printer.setFromTo(1, 2);
                  printer.setCopyCount(2);
                  printer.setPageOrder(QPrinter::LastPageFirst);
              }),
              u"|2|1|2|1"_s);
    EXPECT_EQ(print([](QPrinter &printer) {
                  printer.setCopyCount(2);
                  printer.setCollateCopies(false);
              }),
              u"|1|1|2|2|3|3"_s);
    EXPECT_EQ(failures, QStringList());
}

TEST_F(PrintJobTest, TellsWhatCouldNotBePrintedAndLeavesTheFileBefore) {
    Print([](QPrinter &) {}, {100});
    const QString before = Read();
    Print([](QPrinter &printer) { printer.setFromTo(2, 9); }, {200});
    {
        const FullDisk disk(2000);
        Print([](QPrinter &) {}, {200});
    }
    Print([](QPrinter &printer) { printer.setOutputFileName(u"/no/such/folder.pdf"_s); }, {200});
    EXPECT_EQ(failures.size(), 3);
    EXPECT_EQ(Read(), before);
}

} // namespace
