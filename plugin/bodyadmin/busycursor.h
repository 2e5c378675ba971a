#ifndef TRACKING_BUSYCURSOR_H
#define TRACKING_BUSYCURSOR_H

#include <QElapsedTimer>

// The wait cursor for synchronous work on the controller. A short reload
// would only make the cursor flicker, so it shows once the work has taken
// longer than a blink; poll() is called between the commands.
class BusyCursor
{
public:
    static constexpr int Delay = 150; // milliseconds

    BusyCursor();
    ~BusyCursor();
    BusyCursor(const BusyCursor &) = delete;
    BusyCursor &operator=(const BusyCursor &) = delete;

    void poll();

private:
    QElapsedTimer m_elapsed;
    bool m_shown = false;
};

#endif // TRACKING_BUSYCURSOR_H
