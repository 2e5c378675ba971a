#include "replymemory.h"

#include <QAbstractEventDispatcher>
#include <QThread>

namespace
{

// One memory per IOManager, alive while a channel on it is.
QHash<IOManager *, std::weak_ptr<ReplyMemory>> &memories()
{
    static QHash<IOManager *, std::weak_ptr<ReplyMemory>> registry;
    return registry;
}

QByteArray keyOf(char kind, const QByteArray &command)
{
    return kind + command;
}

} // namespace

std::shared_ptr<ReplyMemory> ReplyMemory::of(IOManager *ioManager)
{
    if (!ioManager)
        return nullptr;
    std::shared_ptr<ReplyMemory> memory = memories().value(ioManager).lock();
    if (!memory) {
        memory.reset(new ReplyMemory(ioManager));
        memories().insert(ioManager, memory);
    }
    return memory;
}

ReplyMemory::ReplyMemory(IOManager *ioManager)
    : m_io(ioManager)
{
}

ReplyMemory::~ReplyMemory()
{
    // A newer memory may already stand for an IOManager at the same address.
    const auto it = memories().constFind(m_io);
    if (it != memories().constEnd() && it->expired())
        memories().erase(it);
}

bool ReplyMemory::followsEventLoop()
{
    QAbstractEventDispatcher *dispatcher
        = QAbstractEventDispatcher::instance(QThread::currentThread());
    if (dispatcher == m_dispatcher)
        return dispatcher;
    // A new dispatcher (or none): what was remembered under the old one may
    // come from any time.
    m_replies.clear();
    if (m_dispatcher)
        m_dispatcher->disconnect(this);
    m_dispatcher = dispatcher;
    if (!dispatcher)
        return false;
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &ReplyMemory::forget);
    // processEvents() without waiting does not announce a block, yet it
    // delivers timers and input all the same.
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, &ReplyMemory::forget);
    return true;
}

bool ReplyMemory::recall(char kind, const QByteArray &command, QVariant *value)
{
    if (!followsEventLoop() || m_replies.isEmpty())
        return false;
    const auto it = m_replies.constFind(keyOf(kind, command));
    if (it == m_replies.constEnd())
        return false;
    *value = *it;
    return true;
}

void ReplyMemory::remember(char kind, const QByteArray &command, const QVariant &value)
{
    if (followsEventLoop())
        m_replies.insert(keyOf(kind, command), value);
}

void ReplyMemory::forget()
{
    m_replies.clear();
}
