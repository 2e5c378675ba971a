#ifndef FUZZWATCHDOG_H
#define FUZZWATCHDOG_H

#include <QByteArray>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

// Keeps the input that is running safe for the moment things go wrong in
// the same process: on a fatal signal, a sanitizer's death or a run that
// outlasts the time limit it writes the input to the artifact file and says
// so on stderr, then lets the process die (a hang is turned into an abort of
// the main thread, so that its stack is printed).
class FuzzWatchdog
{
public:
    FuzzWatchdog();
    ~FuzzWatchdog();

    // timeoutMs <= 0: no time limit.
    void start(int timeoutMs);
    // The input must stay alive until disarm(); it is saved under
    // artifactPath if the run does not come back.
    void arm(const QByteArray &input, const QByteArray &artifactPath);
    void disarm();

private:
    void watch();

    std::thread m_thread;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_stopping = false;
    bool m_armed = false;
    int m_timeoutMs = 0;
    std::chrono::steady_clock::time_point m_deadline;
};

#endif // FUZZWATCHDOG_H
