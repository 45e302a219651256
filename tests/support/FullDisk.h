#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

/// Simulates a full disk: during the object's lifetime, this process cannot write to a file beyond
/// this size.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit before_{};
    void (*handler_)(int);
};
