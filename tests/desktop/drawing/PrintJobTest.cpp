#include "desktop/drawing/PrintJob.h"

#include "support/FullDisk.h"
#include "support/GoogleTest.h"

#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <cups/cups.h>

/// A print job into a PDF file.
class PrintJobTest : public testing::Test {
protected:
    PrintJobTest() {
        printer->setOutputFileName(path);
        printer->setPageSize(QPageSize(QPageSize::A4));
    }
    /// Draws three pages, each with the y coordinate of its text as the text.
    static void DrawPages(PrintJob &job) {
        job.DrawString("100", 40, 100);
        job.NextPage();
        job.DrawString("838", 40, 838);
        job.NextPage();
        job.DrawString("900", 40, 900);
    }
    /// Returns each word with its left, right and bottom edge in points.
    QString Print(const std::function<void(PrintJob &)> &draw = DrawPages) {
        auto job = std::make_unique<PrintJob>(std::move(printer), FolderItem(databasePath),
                                              [this](const QString &text) { failure = text; });
        job->SetTextFont("Courier");
        job->SetTextSize(10);
        draw(*job);
        job.reset();
        EXPECT_EQ(failure, "") << "failures are reported through the event loop";
        QCoreApplication::processEvents();
        const QRegularExpression word(".*xMin=\"(\\d+).*xMax=\"(\\d+).*yMax=\"(\\d+).*>(.*)<.*");
        const QString xml = Run("pdftotext", {"-bbox", path, "-"});
        return xml.split('\n').filter("<word").replaceInStrings(word, "\\1 \\2 \\3 \\4").join(", ");
    }
    static QByteArray Run(const QString &tool, const QStringList &arguments) {
        QProcess process;
        process.start(tool, arguments);
        EXPECT_TRUE(process.waitForFinished());
        return process.readAllStandardOutput();
    }

    const QTemporaryDir folder;
    const QString path = folder.filePath("report.pdf");
    QString databasePath;
    std::unique_ptr<QPrinter> printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    QString failure;
};

TEST_F(PrintJobTest, PrintsCopiesOfTheSelectedPages) {
    printer->setFromTo(2, 3);
    printer->setCopyCount(2);
    printer->setPageOrder(QPrinter::LastPageFirst);
    EXPECT_EQ(Print(), "37 54 841 900, 40 58 841 838, 37 54 841 900, 40 58 841 838");
}

TEST_F(PrintJobTest, PrintsCopiesPageByPage) {
    printer->setCopyCount(2);
    printer->setCollateCopies(false);
    EXPECT_EQ(Print(), "40 58 103 100, 40 58 103 100, 40 58 841 838, 40 58 841 838, "
                       "37 54 841 900, 37 54 841 900");
}

TEST_F(PrintJobTest, DrawsColouredLinesAndBoldTextInAFixedPitch) {
    const auto draw = [](PrintJob &job) {
        job.SetForeColor(Color{0xff0000});
        job.DrawLine(100, 200, 150, 200);
        job.SetTextFont("No such family");
        job.SetTextSize(20);
        job.SetBold(true);
        job.SetUnderline(true);
        EXPECT_NEAR(job.TextHeight(), 24, 6);
        job.DrawString("ii\nWW", 300, 200);
    };
    EXPECT_EQ(Print(draw), "300 324 204 ii, 336 360 204 WW");
    EXPECT_TRUE(Run("pdffonts", {path}).contains("Bold"));
    const auto page = QImage::fromData(Run("pdftoppm", {"-r", "72", "-png", path}));
    EXPECT_EQ(page.pixelColor(125, 200), QColor(Qt::red));
    EXPECT_EQ(page.pixelColor(330, 200), QColor(Qt::red)) << "the underline";
}

TEST_F(PrintJobTest, KeepsPagesOutOfTheMarginsOfThePrinter) {
    const QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {},
                             QPageLayout::Point, {0, 36, 0, 36});
    printer->setPageLayout(layout);
    const auto draw = [](PrintJob &job) {
        job.DrawString("head", 40, 15);
        job.NextPage();
        job.DrawString("head", 40, 15);
        job.DrawString("838", 40, 838);
    };
    EXPECT_EQ(Print(draw), "40 64 48 head, 36 59 47 head, 36 53 805 838");
}

TEST_F(PrintJobTest, ReportsAnEmptyRange) {
    printer->setFromTo(4, 9);
    EXPECT_EQ(Print(), "");
    EXPECT_EQ(failure, "Der Bericht hat keine Seite in dem gewählten Bereich.");
}

TEST_F(PrintJobTest, WritesNoPartOfAFileOnAFullDisk) {
    const FullDisk disk(2000);
    Print();
    EXPECT_TRUE(failure.startsWith("Die Datei " + path));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(PrintJobTest, DoesNotReplaceTheDatabaseFile) {
    EXPECT_TRUE(QFile(path).open(QIODevice::WriteOnly));
    databasePath = folder.path() + "/./report.pdf";
    EXPECT_EQ(Print(), "");
    EXPECT_TRUE(failure.contains("Sie ist das geöffnete Kassenbuch."));
}

/// A print service of its own, with a queue that accepts jobs and one that rejects them.
class PrintQueueTest : public PrintJobTest {
protected:
    PrintQueueTest() {
        Write("cupsd.conf", "Listen %1/socket\n");
        Write("cups-files.conf", "ServerRoot %1\nStateDir %1\nCacheDir %1\nRequestRoot %1/spool\n"
                                 "AccessLog %1/log\nErrorLog %1/log\nPageLog %1/log\n");
        Write("printers.conf", "<Printer Auf>\n</Printer>\n<Printer Zu>\nAccepting No\n</Printer>");
        service.start("/usr/sbin/cupsd", {"-f", "-c", folder.filePath("cupsd.conf"), "-s",
                                          folder.filePath("cups-files.conf")});
        EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(folder.filePath("socket")); }));
        cupsSetServer(qUtf8Printable(folder.filePath("socket")));
    }
    void Write(const QString &name, QString text) const {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_GT(file.write(text.replace("%1", folder.path()).toUtf8()), 0);
    }
    QString PrintOn(const QString &queue, const std::function<void(PrintJob &)> &draw = DrawPages) {
        failure.clear();
        printer = std::make_unique<QPrinter>();
        printer->setPrinterName(queue);
        Print(draw);
        return failure;
    }

    QProcess service;
};

TEST_F(PrintQueueTest, ReportsWhyAPrintJobFailed) {
    EXPECT_EQ(PrintOn("Zu"),
              "Der Drucker Zu hat den Bericht nicht angenommen: Er nimmt keine Aufträge an.");
    EXPECT_EQ(PrintOn("Auf"), "");
    const auto stopService = [this](PrintJob & /*job*/) {
        service.terminate();
        EXPECT_TRUE(service.waitForFinished());
    };
    EXPECT_TRUE(PrintOn("Auf", stopService).contains(": Er ist nicht mehr eingerichtet, oder "));
}
