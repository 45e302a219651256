#include "desktop/drawing/PrintJob.h"

#include "support/FullDisk.h"
#include "support/GoogleTest.h"

#include <QCoreApplication>
#include <QImage>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <cups/cups.h>

class PrintJobTest : public testing::Test {
protected:
    using SetUp = std::function<void(QPrinter &)>;

    std::unique_ptr<PrintJob> CreateJob(const SetUp &setUp = [](QPrinter &) {}) {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFileName(path);
        printer->setPageSize(QPageSize(QPageSize::A4));
        setUp(*printer);
        return std::make_unique<PrintJob>(std::move(printer), databaseFile,
                                          [this](const QString &) { ++failures; });
    }
    /// Prints three pages to a PDF file, each with the y coordinate of its text as the text, and
    /// returns its words.
    QStringList Print(const SetUp &setUp = [](QPrinter &) {}) {
        auto job = CreateJob(setUp);
        job->SetTextFont("Courier");
        job->SetTextSize(10);
        job->DrawString("100", 40, 100);
        job->NextPage();
        job->DrawString("838", 40, 838);
        job->NextPage();
        job->DrawString("900", 40, 900);
        job.reset();
        EXPECT_EQ(failures, reportedFailures) << "failures are reported through the event loop";
        QCoreApplication::processEvents();
        reportedFailures = failures;
        return Read();
    }
    /// Returns the output of a poppler tool.
    QByteArray RunTool(const QString &tool, const QStringList &arguments) const {
        QProcess process;
        process.start(tool, arguments);
        EXPECT_TRUE(process.waitForFinished());
        return process.readAllStandardOutput();
    }
    /// Returns for each word its left, right and bottom edge in points, and its text.
    QStringList Read() const {
        static const QRegularExpression word("xMin=\"(\\d+).*xMax=\"(\\d+).*yMax=\"(\\d+).*>(.*)<");
        QStringList found;
        const auto xml = QString::fromUtf8(RunTool("pdftotext", {"-bbox", path, "-"}));
        for (const QRegularExpressionMatch &match : word.globalMatch(xml)) {
            found.append(match.capturedTexts().mid(1).join(u' '));
        }
        return found;
    }

    QTemporaryDir folder;
    QString path = folder.filePath("report.pdf");
    std::optional<FolderItem> databaseFile;
    int failures = 0;
    int reportedFailures = 0;
};

TEST_F(PrintJobTest, PrintsTheSelectedPagesAndScalesThemToThePaper) {
    struct Case {
        const char *name;
        SetUp setUp;
        QStringList printed;
    };
    // The width of a Courier character is 0.6 of the font size.
    const QString first = "40 58 103 100";
    const QString second = "40 58 841 838";
    const QString third = "37 54 841 900";
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
    for (const Case &each : cases) {
        EXPECT_EQ(Print(each.setUp), each.printed) << each.name;
    }
}

TEST_F(PrintJobTest, DrawsColouredLinesAndBoldTextOnOneLine) {
    auto job = CreateJob();
    EXPECT_EQ(QSizeF(job->Width(), job->Height()).toSize(), QSize(595, 842));
    job->SetForeColor(Color{0xff0000});
    job->DrawLine(100, 200, 150, 200);
    job->SetTextFont("Courier");
    job->SetTextSize(20);
    job->SetBold(true);
    EXPECT_NEAR(job->TextHeight(), 24, 6);
    job->DrawString("ii\ni", 300, 200);
    job.reset();
    const auto page = QImage::fromData(RunTool("pdftoppm", {"-r", "72", "-png", path}));
    EXPECT_EQ(page.pixelColor(125, 200), QColor(Qt::red));
    EXPECT_EQ(Read().replaceInStrings(QRegularExpression(".* "), {}), QStringList({"ii", "i"}));
    EXPECT_TRUE(RunTool("pdffonts", {path}).contains("Bold"));
}

/// Runs its own print service, with a queue that accepts jobs and one that rejects them.
class PrintQueueTest : public testing::Test {
protected:
    PrintQueueTest() {
        Write("cupsd.conf", "Listen %1/socket\n<Location />\nAllow all\n</Location>\n");
        Write("cups-files.conf",
              "ServerRoot %1\nStateDir %1\nCacheDir %1\nRequestRoot %1/spool\n"
              "AccessLog %1/log\nErrorLog %1/log\nPageLog %1/log\nFileDevice Yes\n");
        Write("printers.conf",
              "<Printer Offen>\nDeviceURI file:///dev/null\nAccepting Yes\n</Printer>\n"
              "<Printer Zu>\nDeviceURI file:///dev/null\nAccepting No\n</Printer>\n");
        service.start(QStandardPaths::findExecutable("cupsd", {"/usr/sbin"}),
                      {"-f", "-c", Path("cupsd.conf"), "-s", Path("cups-files.conf")});
        EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(Path("socket")); }));
        cupsSetServer(qUtf8Printable(Path("socket")));
    }
    ~PrintQueueTest() override {
        StopService();
        cupsSetServer(nullptr);
    }
    Q_DISABLE_COPY_MOVE(PrintQueueTest)

    QString Path(const QString &name) const { return folder.filePath(name); }
    void Write(const QString &name, const QString &text) const {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) &&
                    file.write(QString(text).replace("%1", folder.path()).toUtf8()) > 0);
    }
    void StopService() {
        service.terminate();
        EXPECT_TRUE(service.state() == QProcess::NotRunning || service.waitForFinished());
    }
    std::unique_ptr<PrintJob> CreateJob(const QString &queue) {
        auto printer = std::make_unique<QPrinter>();
        printer->setPrinterName(queue);
        return std::make_unique<PrintJob>(std::move(printer), std::nullopt,
                                          [this](const QString &failure) { message = failure; });
    }
    /// Ends the job and returns the message shown to the user, if any.
    QString EndJob(std::unique_ptr<PrintJob> job) {
        message.clear();
        job.reset();
        QCoreApplication::processEvents();
        return message;
    }

    const QTemporaryDir folder;
    QProcess service;
    QString message;
};

TEST_F(PrintQueueTest, ReportsWhyAPrintJobFailed) {
    EXPECT_EQ(EndJob(CreateJob("Offen")), QString());
    EXPECT_EQ(EndJob(CreateJob("Zu")),
              "Der Drucker Zu hat den Bericht nicht angenommen: Er nimmt keine Aufträge an.");
    EXPECT_EQ(EndJob(CreateJob("Offen")), QString()) << "the other queue still accepts jobs";
    auto job = CreateJob("Offen");
    StopService();
    EXPECT_EQ(EndJob(std::move(job)),
              "Der Drucker Offen hat den Bericht nicht angenommen: "
              "Er ist nicht mehr eingerichtet, oder der Druckdienst läuft nicht.");
}

TEST_F(PrintJobTest, ReportsFailuresAndKeepsThePreviousFile) {
    const QStringList before = Print([](QPrinter &printer) { printer.setFromTo(1, 1); });
    EXPECT_EQ(Print([](QPrinter &printer) { printer.setFromTo(4, 9); }), before);
    {
        const FullDisk disk(2000);
        Print();
    }
    databaseFile = FolderItem(folder.path() + "/./report.pdf");
    Print();
    EXPECT_EQ(failures, 3);
    EXPECT_EQ(Read(), before);
}
