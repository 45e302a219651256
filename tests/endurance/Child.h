#pragma once

#include <QByteArray>
#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

/// A process of its own that runs a function and tells its parent lines of text. No database may be
/// open when it starts.
class Child {
public:
    using Tell = std::function<void(const QByteArray &line)>;

    explicit Child(const std::function<void(const Tell &tell)> &work) {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe(ends.data()), 0);
        id_ = fork();
        if (id_ == 0) {
            work([&ends](QByteArray line) {
                line += '\n';
                EXPECT_EQ(write(ends[1], line.constData(), size_t(line.size())), line.size());
            });
            // What the parent holds is not the child's to clear away.
            _exit(testing::Test::HasFailure() ? 1 : 0);
        }
        close(ends[1]);
        pipe_ = ends[0];
    }
    ~Child() {
        Kill();
        close(pipe_);
    }
    Child(const Child &) = delete;
    Child &operator=(const Child &) = delete;

    /// The next whole line; empty when the child has ended.
    QByteArray Line() const {
        QByteArray line;
        char next = 0;
        while (read(pipe_, &next, 1) == 1 && next != '\n') {
            line += next;
        }
        return next == '\n' ? line : QByteArray();
    }
    /// Whether it was still there to be killed.
    bool Kill() {
        if (id_ > 0) {
            kill(id_, SIGKILL);
        }
        const int status = End();
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    }
    /// Waits for the end; false after a crash, and if an expectation failed in the child.
    bool Succeeds() { return End() == 0; }

private:
    int End() {
        int status = -1;
        waitpid(std::exchange(id_, -1), &status, 0);
        return status;
    }

    int id_ = -1;
    int pipe_ = -1;
};
