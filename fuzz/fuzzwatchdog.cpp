#include "fuzzwatchdog.h"

#include <execinfo.h>
#include <fcntl.h>
#include <pthread.h>
#include <signal.h>
#include <unistd.h>

#include <cstring>

// Sanitizer runtimes own the fatal signals when they are linked in; they
// tell us through this hook before the process goes.
extern "C" void __sanitizer_set_death_callback(void (*callback)(void)) __attribute__((weak));

namespace
{

// What a signal handler may touch: plain memory, set before the input runs.
char artifactPath[4096];
const char *volatile currentData = nullptr;
volatile size_t currentSize = 0;
std::atomic<bool> dumped { false };
pthread_t mainThread;

void say(const char *text)
{
    const ssize_t ignored = write(STDERR_FILENO, text, std::strlen(text));
    (void)ignored;
}

void dumpInput()
{
    if (dumped.exchange(true) || !currentData)
        return;
    const int fd = open(artifactPath, O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd >= 0) {
        size_t done = 0;
        while (done < currentSize) {
            const ssize_t n = write(fd, currentData + done, currentSize - done);
            if (n <= 0)
                break;
            done += size_t(n);
        }
        close(fd);
    }
    say("\n==fuzz== the input that was running is saved in ");
    say(artifactPath);
    say("\n");
}

void onFatalSignal(int number)
{
    dumpInput();
    say("==fuzz== fatal signal, stack:\n");
    void *frames[64];
    backtrace_symbols_fd(frames, backtrace(frames, 64), STDERR_FILENO);
    signal(number, SIG_DFL);
    raise(number);
}

} // namespace

FuzzWatchdog::FuzzWatchdog() = default;

FuzzWatchdog::~FuzzWatchdog()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_stopping = true;
    }
    m_wake.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void FuzzWatchdog::start(int timeoutMs)
{
    mainThread = pthread_self();
    // The first backtrace() loads the unwinder, which allocates: not in a
    // signal handler that may have interrupted malloc.
    void *frame[1];
    backtrace(frame, 1);
    m_timeoutMs = timeoutMs;
    // An abort is ours in any case: failed assertions and our own hang alarm.
    signal(SIGABRT, onFatalSignal);
    if (__sanitizer_set_death_callback) {
        __sanitizer_set_death_callback(dumpInput);
    } else {
        for (int number : { SIGSEGV, SIGBUS, SIGFPE, SIGILL })
            signal(number, onFatalSignal);
    }
    if (timeoutMs > 0)
        m_thread = std::thread(&FuzzWatchdog::watch, this);
}

void FuzzWatchdog::arm(const QByteArray &input, const QByteArray &path)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    qstrncpy(artifactPath, path.constData(), sizeof artifactPath);
    currentData = input.constData();
    currentSize = size_t(input.size());
    m_armed = true;
    m_deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(m_timeoutMs);
}

void FuzzWatchdog::disarm()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_armed = false;
    currentData = nullptr;
    currentSize = 0;
}

void FuzzWatchdog::watch()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_stopping) {
        m_wake.wait_for(lock, std::chrono::milliseconds(100));
        if (m_armed && std::chrono::steady_clock::now() > m_deadline) {
            dumpInput();
            say("==fuzz== the input ran past the time limit: a hang; aborting it\n");
            // The main thread's stack shows where it hangs.
            pthread_kill(mainThread, SIGABRT);
            m_armed = false;
        }
    }
}
