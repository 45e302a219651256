#include "BookPair.h"
#include "Measures.h"

#include <QCoreApplication>
#include <QProcess>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

/// Starts a program and counts the time until it tells, by a line, that its window is painted.
void Start(benchmark::State &state, const FakeDesktop &desktop, const QString &program,
           const QStringList &arguments) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"XDG_DATA_HOME"_s, desktop.ApplicationData().Path());
    for (auto _ : state) {
        QProcess process;
        process.setProcessEnvironment(environment);
        const auto begin = std::chrono::steady_clock::now();
        process.start(QCoreApplication::applicationDirPath() + u'/' + program, arguments);
        if (!process.waitForReadyRead() || process.readLine() != "painted\n") {
            state.SkipWithError("the window was not painted");
            return;
        }
        const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin;
        state.SetIterationTime(passed.count());
        process.waitForFinished();
    }
}

/// The program, and an empty window on the same file after these statements.
Measure StartOf(const std::string &name, double goal, const LargeBook &env,
                const QStringList &statements) {
    const FakeDesktop &desktop = env.env.desktop;
    const QStringList arguments =
        QStringList{env.Copy(), QString::fromLatin1(fixedKey)} + statements;
    return {.name = name,
            .goal = goal,
            .ours = [&desktop](auto &state) { Start(state, desktop, u"start_program"_s, {}); },
            .bare = [&desktop, arguments](
                        auto &state) { Start(state, desktop, u"start_empty_window"_s, arguments); },
            .timesItself = true};
}

} // namespace

std::vector<Measure> StartMeasures(const Books &books) {
    const QString readsOnePage = u"SELECT count(*) FROM sqlite_master"_s;
    const QStringList readsJournal = {
        u"SELECT DISTINCT substr(vdate, 1, 4) FROM cash_journal WHERE vdate > 0 ORDER BY vdate DESC"_s,
        QString::fromStdString(BookingsOf({})), QString::fromStdString(BookingsBefore({}))};
    // What the statements of the opening journal cost is no concern of the window's.
    return {StartOf("start", 1.5, books.middle->ours, {readsOnePage}),
            StartOf("start_statements", 1.1, books.middle->ours, readsJournal)};
}
