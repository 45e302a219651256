#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

/// While it lives, no file can grow beyond so many bytes.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit full{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
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
