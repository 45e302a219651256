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

} // namespace
