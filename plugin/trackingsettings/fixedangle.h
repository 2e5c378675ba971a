#ifndef TRACKING_FIXEDANGLE_H
#define TRACKING_FIXEDANGLE_H

#include <QString>

// The fixed-angle settings of one standard body: which rotations about the
// room axes are held, and at which angle (degrees).
class FixedAngle
{
public:
    // Takes flags and angles from a "standard fixed_angle" reply: flag and
    // angle for x, y and z, separated by blanks ("yes 5.00 no 0.00 no 0.00").
    // Missing or unreadable fields read as not held and 0.
    void setFromReply(const QString &reply);
    bool anyHeld() const { return fixX || fixY || fixZ; }

    int id = 0; // one-based body number
    QString name;
    bool usable = false; // calibrated, with a target type that allows fixed angles
    bool fixX = false;
    bool fixY = false;
    bool fixZ = false;
    double angleX = 0.0;
    double angleY = 0.0;
    double angleZ = 0.0;
};

#endif // TRACKING_FIXEDANGLE_H
