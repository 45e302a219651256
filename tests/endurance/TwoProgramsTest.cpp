#include "endurance/Child.h"
#include "endurance/Endurance.h"
#include "endurance/Program.h"

using namespace Qt::StringLiterals;

namespace {

/// Programs of their own processes on one book.
class TwoPrograms : public Endurance {
protected:
    /// Books and changes, and tells the line that each booking must have.
    void Work(QChar name, int pipe) {
        Program program(desktop);
        const Listbox &list = program.window->journal.CashList;
        for (int i = 0; i < 12; ++i) {
            const QString number = name + QString::number(i);
            const int times = 1 + Any(500);
            program.Submit(number, u"1.50"_s, times);
            const auto numbers = list.Cell(-1, Journal::SaleNumber).split(u'\n');
            program.Change(int(numbers.indexOf(number)), u"2.50"_s);
            EXPECT_EQ(desktop.TakeMessages(), QString());
            Child::Tell(pipe, Program::Line(number, u"2.50"_s, times).toUtf8());
        }
    }

    FakeDesktop desktop;
};

TEST_F(TwoPrograms, LoseAndDoubleNothing) {
    Run(4, [this] {
        Program(desktop).app.kvoDB().SQLExecute(u"DELETE FROM cash_journal"_s);
        QStringList told;
        {
            Child first([this](int pipe) { Work(u'a', pipe); });
            Child second([this](int pipe) { Work(u'b', pipe); });
            for (Child *child : {&first, &second}) {
                for (QByteArray line = child->Line(); !line.isEmpty(); line = child->Line()) {
                    told.append(QString::fromUtf8(line));
                }
                EXPECT_EQ(child->End(), 0);
            }
        }
        const Program program(desktop);
        QStringList stored = program.Stored();
        counts["bookings reported"] += int(told.size());
        counts["found"] += int(stored.size());
        told.sort();
        stored.sort();
        EXPECT_EQ(stored, told);
        EXPECT_TRUE(program.IsSound());
    });
}

TEST_F(TwoPrograms, WaitButNotForEver) {
    Program(desktop).Submit(u"1"_s, u"1.00"_s);
    Run(1, [this] {
        Child other([this](int pipe) {
            const Program program(desktop);
            program.app.kvoDB().SQLExecute(u"BEGIN IMMEDIATE"_s);
            Child::Tell(pipe, "locked");
            pause();
        });
        EXPECT_EQ(other.Line(), "locked");
        Program program(desktop);
        const QStringList before = program.Stored();
        program.Submit(u"1"_s, u"1.00"_s);
        EXPECT_EQ(desktop.TakeMessages(), u"database is locked"_s);
        other.End(SIGKILL);
        EXPECT_EQ(program.Stored(), before);
        program.Submit(u"1"_s, u"1.00"_s);
        EXPECT_EQ(program.Stored().size(), before.size() + 1);
    });
}

} // namespace
