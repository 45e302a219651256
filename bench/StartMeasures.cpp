#include "Measures.h"

#include <QCoreApplication>
#include <QProcess>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

/// Starts a program and measures the time until it prints that its window is painted.
Side Start(const FakeDesktop &desktop, const QString &program, const QStringList &arguments = {}) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"XDG_DATA_HOME"_s, desktop.ApplicationData().Path());
    // Qt 6.4's salted hash slows down some processors; the program turns the salt off.
    environment.insert(u"QT_HASH_SEED"_s, u"0"_s);
    return [=](benchmark::State &state) {
        for (auto _ : state) {
            QProcess process;
            process.setProcessEnvironment(environment);
            const auto begin = std::chrono::steady_clock::now();
            process.start(QCoreApplication::applicationDirPath() + u'/' + program, arguments);
            if (!process.waitForReadyRead() || process.readLine() != "painted\n") {
                state.SkipWithError("the window was not painted");
                return;
            }
            const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
            state.SetIterationTime(time.count());
            process.waitForFinished();
        }
    };
}

} // namespace

void AddStartMeasures(const Pair &small) {
    const FakeDesktop &desktop = small->ours.env.desktop;
    const QStringList database = {small->ours.Copy(), QString::fromLatin1(fixedKey)};
    const QStringList readPage = {u"SELECT count(*) FROM sqlite_master"_s};
    const QStringList readJournal = {
        u"SELECT DISTINCT substr(vdate, 1, 4) FROM cash_journal WHERE vdate > 0 ORDER BY vdate DESC"_s,
        QString::fromLatin1(bookingsOfYear), QString::fromLatin1(bookingsBefore)};
    const Side ours = Start(desktop, u"start_program"_s);
    AddMeasure("start", ours, Start(desktop, u"start_empty_window"_s, database + readPage), true);
    AddMeasure("start_statements", ours,
               Start(desktop, u"start_empty_window"_s, database + readJournal), true);
}
