#ifndef TRACKING_TRACKINGPREFERENCES_H
#define TRACKING_TRACKINGPREFERENCES_H

#include <QString>

// The tracking dialog's two display preferences, kept per user and per module
// version in a small XML file under the home directory. Everything else lives
// in the controller.
//
// read() and write() return the error report to send, or an empty text.
class TrackingPreferences
{
public:
    explicit TrackingPreferences(const QString &moduleVersion);

    QString directory() const { return m_directory; }
    QString fileName() const;

    // Falls back to the built-in values when the file is missing or unusable.
    QString read();
    // Never leaves a half-written file behind: the old one stays until the
    // new one is complete.
    QString write() const;

    bool fixedAngleVisible() const { return m_fixedAngleVisible; }
    bool autoRestartVisible() const { return m_autoRestartVisible; }
    // What the last opening showed; a dialog that was never opened showed no
    // button, whatever the file said.
    bool advancedShown() const { return m_advancedShown; }
    void setAdvancedShown(bool shown) { m_advancedShown = shown; }

private:
    QString m_directory;
    bool m_fixedAngleVisible = false;
    bool m_autoRestartVisible = false;
    bool m_advancedShown = false;
};

#endif // TRACKING_TRACKINGPREFERENCES_H
