#ifndef TRACKING_REPLYMEMORY_H
#define TRACKING_REPLYMEMORY_H

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QVariant>

#include <memory>

class IOManager;
class QAbstractEventDispatcher;

// The answers the controller gave during one uninterrupted burst of GUI work
// (a click handler, a timer tick, a dialog being built). Within the burst the
// controller's state can only change through the module's own writes, so a
// read asked again would bring the same answer; outside it, anything may have
// changed. The memory is shared by every channel on one IOManager, since the
// dialog, its tabs and the target library each keep a channel of their own.
//
// It forgets everything when the thread's event loop is about to wait or
// wakes up (also in nested modal loops: anything may happen in between), and
// when told to, at every write. Without an event dispatcher there is no way
// to tell where a burst ends, so nothing is remembered.
class ReplyMemory : public QObject
{
    Q_OBJECT

public:
    // The memory of this IOManager's channels; null for a null IOManager.
    static std::shared_ptr<ReplyMemory> of(IOManager *ioManager);
    ~ReplyMemory() override;

    // The remembered answer to a read ("kind" tells getString from getInt of
    // the same path).
    bool recall(char kind, const QByteArray &command, QVariant *value);
    void remember(char kind, const QByteArray &command, const QVariant &value);
    void forget();

private:
    explicit ReplyMemory(IOManager *ioManager);
    // Follows the current thread's dispatcher; false when there is none.
    bool followsEventLoop();

    IOManager *m_io;
    QPointer<QAbstractEventDispatcher> m_dispatcher;
    QHash<QByteArray, QVariant> m_replies;
};

#endif // TRACKING_REPLYMEMORY_H
