#ifndef MESSAGERECEIVER_H
#define MESSAGERECEIVER_H

// A subscriber of the host's message service. The host calls receiveMessage
// for every message addressed to a name the receiver is registered under.
class MessageReceiver
{
public:
    // receiver: the name the message was addressed to; sender: the sending
    // module's name; text: the message (may be null). All zero-terminated.
    // Returns 0 when the message was taken.
    virtual int receiveMessage(const char *receiver, const char *sender, const char *text) = 0;

protected:
    // receiveMessage is the one entry of the host's table; receivers are
    // never deleted through this base.
    ~MessageReceiver() = default;
};

#endif // MESSAGERECEIVER_H
