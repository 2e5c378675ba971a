#ifndef MESSAGERECEIVER_H
#define MESSAGERECEIVER_H

// A subscriber of the host's message service. The host calls receiveMessage
// for every message addressed to a name the receiver is registered under.
class MessageReceiver
{
public:
    virtual ~MessageReceiver() = default;

    // receiver: the name the message was addressed to; sender: the sending
    // module's name; text: the message (may be null). All zero-terminated.
    // Returns 0 when the message was taken.
    virtual int receiveMessage(const char *receiver, const char *sender, const char *text) = 0;
};

#endif // MESSAGERECEIVER_H
