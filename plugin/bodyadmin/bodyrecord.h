#ifndef TRACKING_BODYRECORD_H
#define TRACKING_BODYRECORD_H

#include <QString>

// What the tabs cache of one body; commands and messages show index + 1.
struct BodyRecord {
    QString description; // without the reply's double quotes
    bool active = false; // tracked
    bool calibrated = false; // has geometry
    bool recalibrated = false; // re-calibrated after a target-library calibration
    bool hybridCalibrated = false; // its inertial sensor has a hand-eye calibration
    QString targetLibraryName; // library target it was calibrated from; empty for none
    QString inertialSensor; // sensor id; empty for none
    QString calibrationText; // derived, for the calibration column
    QString filterText; // derived, for the filter column
    bool isReference = false; // the tracking reference (standard bodies only)

    bool hasInertialSensor() const { return !inertialSensor.isEmpty(); }
};

#endif // TRACKING_BODYRECORD_H
