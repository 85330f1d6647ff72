#pragma once

#include <csignal>

namespace zelmat {

/// Makes the signals that end a program from outside (SIGINT, SIGTERM, SIGHUP) wait until the end of the
/// scope, so that what is half done is finished first.
class SignalHold {
public:
    SignalHold() {
        sigset_t held;
        sigemptyset(&held);
        for (const int signal : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&held, signal);
        sigprocmask(SIG_BLOCK, &held, &before_);
    }
    ~SignalHold() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
    SignalHold(const SignalHold&) = delete;
    SignalHold& operator=(const SignalHold&) = delete;

private:
    sigset_t before_{};
};

/// Whether one of the signals that SignalHold holds back has come, and is not ignored as nohup has it.
inline bool IsToldToEnd() {
    sigset_t pending;
    sigemptyset(&pending);
    sigpending(&pending);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action {};
        const bool ignored = sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
        if (!ignored && sigismember(&pending, signal) == 1) return true;
    }
    return false;
}

/// Makes writing to a pipe that nobody reads an error for as long as the scope lasts, in place of the
/// program's end.
class PipeErrors {
public:
    PipeErrors() : before_(std::signal(SIGPIPE, SIG_IGN)) {}
    ~PipeErrors() { std::signal(SIGPIPE, before_); }
    PipeErrors(const PipeErrors&) = delete;
    PipeErrors& operator=(const PipeErrors&) = delete;

private:
    void (*before_)(int);
};

}  // namespace zelmat
