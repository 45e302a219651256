#pragma once

#include <QByteArray>
#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

/// A process of its own that runs a function, which can tell its parent lines of text by the pipe
/// that it is given. No database may be open when it starts.
class Child {
public:
    template <typename Work>
    explicit Child(const Work &work) {
        EXPECT_EQ(pipe(pipe_.data()), 0);
        id_ = fork();
        if (id_ == 0) {
            work(pipe_[1]);
            // What the parent holds is not the child's to clear away.
            _exit(testing::Test::HasFailure() ? 1 : 0);
        }
        close(pipe_[1]);
    }
    ~Child() {
        End(SIGKILL);
        close(pipe_[0]);
    }
    Child(const Child &) = delete;
    Child &operator=(const Child &) = delete;

    static void Tell(int pipe, const QByteArray &line) {
        EXPECT_EQ(write(pipe, (line + '\n').constData(), size_t(line.size()) + 1), line.size() + 1);
    }
    /// The next whole line; empty when the child has ended.
    QByteArray Line() const {
        QByteArray line;
        char next = 0;
        while (read(pipe_[0], &next, 1) == 1 && next != '\n') {
            line += next;
        }
        return next == '\n' ? line : QByteArray();
    }
    /// Waits for the end, or brings it about: the signal that ended the child, 0 if it ended by
    /// itself and all its expectations were met.
    int End(int signal = 0) {
        int status = -1;
        const pid_t id = std::exchange(id_, -1);
        if (id > 0 && kill(id, signal) == 0) {
            waitpid(id, &status, 0);
        }
        return status;
    }

private:
    pid_t id_ = -1;
    std::array<int, 2> pipe_{};
};
