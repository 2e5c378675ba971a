<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="de_DE">
<context>
    <name>AngleTableWidget</name>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>rx</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>ry</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>rz</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>BodyAdminDialog</name>
    <message>
        <source>Body Administration</source>
        <translation>Körperverwaltung</translation>
    </message>
    <message>
        <source>Body administration</source>
        <translation>Körperverwaltung</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Gripwand</source>
        <translation>Gripwand</translation>
    </message>
    <message>
        <source>Adjust 6DOF filter for bodies</source>
        <translation>6DOF-Filter der Körper einstellen</translation>
    </message>
    <message>
        <source>Fi&amp;lter</source>
        <translation>Fi&amp;lter</translation>
    </message>
    <message>
        <source>Calibrate the selected body</source>
        <translation>Den gewählten Körper kalibrieren</translation>
    </message>
    <message>
        <source>&amp;Custom Calibration</source>
        <translation>&amp;Eigene Kalibrierung</translation>
    </message>
    <message>
        <source>Alt+C</source>
        <translation>Alt+E</translation>
    </message>
    <message>
        <source>Calibrate the selected hybrid body</source>
        <translation>Den gewählten Hybridkörper kalibrieren</translation>
    </message>
    <message>
        <source>&amp;Hybrid Body Calibration</source>
        <translation>&amp;Hybridkörper-Kalibrierung</translation>
    </message>
    <message>
        <source>Adjust the coordinate system of the selected body</source>
        <translation>Das Koordinatensystem des gewählten Körpers justieren</translation>
    </message>
    <message>
        <source>&amp;Body Adjustment</source>
        <translation>Körper&amp;justierung</translation>
    </message>
    <message>
        <source>Save changes and close dialog</source>
        <translation>Änderungen speichern und Dialog schließen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>BodyAdministrationDlg</name>
    <message>
        <source>Unable to close dialog during calibration is running</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>BodyLoader</name>
    <message>
        <source>Error: Unable to get number of %1 bodies</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get description of bodytype %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get availability of filter6d for bodytype %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get description of body %1 b%2 </source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get targetlib name of body %1 b%2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get activeness of body %1 b%2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get calibration state of body %1 b%2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get recalibrated state of body %1 b%2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get inertial sensor of body %1 b%2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get handeye status of sensor %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>not calibrated</source>
        <translation>nicht kalibriert</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Vollständig</translation>
    </message>
    <message>
        <source>Optical</source>
        <translation>Optisch</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>Target Library</source>
        <translation>Targetbibliothek</translation>
    </message>
    <message>
        <source>, re-calibrated</source>
        <translation>, nachkalibriert</translation>
    </message>
    <message>
        <source>not active</source>
        <translation>nicht aktiv</translation>
    </message>
    <message>
        <source>Error: Unable to info body reference</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>BodyOperations</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error: Unable to set activeness of body %1 b%2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set description of body %1 b%2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>A de-activated body cannot be set as reference.
Please activate this body before.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set body %1 b%2 as reference body</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Unable to information of reference body</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to de-activate the reference body</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Unknown reset of %1 %2!</source>
        <translation>Unbekanntes Zurücksetzen von %1 %2!</translation>
    </message>
    <message>
        <source>Reset %1 %2
to Target-Library geometry?</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to reset body from target library</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Reset of %1 %2 failed!</source>
        <translation>Zurücksetzen von %1 %2 fehlgeschlagen!</translation>
    </message>
    <message>
        <source>Unable to get storage info from sensor</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Reset %1 %2
to sensor stored values?</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Unable to get info about hand eye calibration from sensor</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Reset %1 %2?</source>
        <translation>%1 %2 zurücksetzen?</translation>
    </message>
    <message>
        <source>Reset %1 %2?
Hand eye calibration will be deleted!</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Could not get warmup status</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Could not stop warmup of sensors</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Unable to reset sensor hand eye calibration</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Could not start warmup of sensors</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to reset body to sensor stored values</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Delete geometry of %1 %2?
If yes, the assignment as reference to other bodies will be deleted.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Delete assignment of sensor %1 and 
delete geometry of %2 %3?</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Delete geometry of %1 %2?</source>
        <translation>Geometrie von %1 %2 löschen?</translation>
    </message>
    <message>
        <source>Delete %1 %2 failed</source>
        <translation>Löschen von %1 %2 fehlgeschlagen</translation>
    </message>
    <message>
        <source>Unable to reset reference body</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get info preset available</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Unable to reset filter6d of %1 %2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Unable to reset sensor of %1 %2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Unable to reset markers of %1 %2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Unable to reset description of %1 %2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to switch bodies</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Switching %1 %2 and %3 failed!</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Unable to get info targetlib ID of body</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Unable to reset markers of target %1 %2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Unable to reset description of target %1 %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to calibrate body from target library</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>BodyTableFiller</name>
    <message>
        <source>Error: Unable to get info inertial tracking available</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>BodyTypeAdministrationTab</name>
    <message>
        <source>Error: Unable to get info inertial tracking available</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get info inertial sensor is present</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>VELORA4</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Decreasing the number of standard bodies will disable the reference!

</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Continue?</source>
        <translation>Fortfahren?</translation>
    </message>
    <message>
        <source>Unable to get info targetlib ID of body</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Overwrite body calibration data of %1?</source>
        <translation>Kalibrierdaten von %1 überschreiben?</translation>
    </message>
</context>
<context>
    <name>FilterDialog</name>
    <message>
        <source>Filter Settings</source>
        <translation>Filtereinstellungen</translation>
    </message>
    <message>
        <source>6DOF filter settings</source>
        <translation>6DOF-Filtereinstellungen</translation>
    </message>
    <message>
        <source>&amp;body</source>
        <translation>&amp;Körper</translation>
    </message>
    <message>
        <source>Select body to adjust the 6DOF filter</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&amp;active</source>
        <translation>&amp;aktiv</translation>
    </message>
    <message>
        <source>&amp;preset</source>
        <translation>&amp;Vorgabe</translation>
    </message>
    <message>
        <source>&lt;html&gt;Choose a 6DOF filter preset, or "custom" for your own settings.&lt;br&gt;A preset is a pre-definded set of strength, prediction and mode.&lt;/html&gt;</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&amp;strength</source>
        <translation>&amp;Stärke</translation>
    </message>
    <message>
        <source>Adjust 6DOF filter strength. Min. = 0.01, max. = 0.99</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>pre&amp;diction [ms]</source>
        <translation>&amp;Vorhersage [ms]</translation>
    </message>
    <message>
        <source>&amp;mode</source>
        <translation>&amp;Modus</translation>
    </message>
    <message>
        <source>Adjust 6DOF filter mode</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Close dialog</source>
        <translation>Dialog schließen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Error: Unable to get number of filter 6d presets</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get filter 6d preset id</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get filter 6d preset description</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get filter 6d preset id available</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get number of filter 6d modes</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get filter 6d mode id</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get filter 6d mode description</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get filter 6d mode id available</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>6DOF filter for standard bodies not available</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>6DOF filter for gripwands not available</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>6DOF filter not available</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>standard body %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Gripwand body %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get filter 6d preset for body %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get filter 6d strength for body %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get filter 6d prediction for body %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get filter 6d mode for body %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to activate/deactivate filter 6d for body %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set filter 6d preset for body %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set filter 6d strength for body %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set filter 6d prediction for body %1</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set filter 6d mode for body %1</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>FilterHelpClass</name>
    <message>
        <source>Help Filter</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Help for filter settings</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&lt;html&gt;&lt;body&gt;&lt;p style="margin-top:10px"&gt;&lt;b&gt;Strength&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Low values mean less filtering: the output reacts faster but jitters more.&lt;br/&gt;High values mean stronger filtering: the output is smoother but reacts more slowly.&lt;/p&gt;&lt;p style="margin-top:10px"&gt;&lt;b&gt;Prediction&lt;/b&gt;&lt;/p&gt;&lt;p&gt;The output is predicted the given time ahead to make up for the latency of tracking and rendering.&lt;br/&gt;Too high positive values can increase jitter and reduce precision.&lt;br/&gt;Negative values smooth the output at the cost of higher latency.&lt;/p&gt;&lt;p style="margin-top:10px"&gt;&lt;b&gt;Mode&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Specifies the elementary behavior of the filter. Several option are available:&lt;/p&gt;&lt;table cellspacing="0" cellpadding="3"&gt;&lt;tr&gt;&lt;td valign="top" style="padding-right:12px"&gt;&lt;b&gt;Adaptive fast&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Adapts the filter to the observed motion.&lt;br/&gt;&lt;i&gt;Use for:&lt;/i&gt; Moving targets that change between fast and slow motions, such as Gripwands.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td valign="top" style="padding-right:12px"&gt;&lt;b&gt;Adaptive slow&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Adapts the filter to the observed motion, with stronger filtering of fast motions.&lt;br/&gt;&lt;i&gt;Use for:&lt;/i&gt; Targets with slow and medium motions.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td valign="top" style="padding-right:12px"&gt;&lt;b&gt;Fast&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Filtering for fast motions.&lt;br/&gt;&lt;i&gt;Use for:&lt;/i&gt; Targets that need a quick reaction, such as head-mounted displays.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td valign="top" style="padding-right:12px"&gt;&lt;b&gt;Slow&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Filtering for medium motions.&lt;br/&gt;&lt;i&gt;Use for:&lt;/i&gt; Targets that need a quick reaction with slow motions.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td valign="top" style="padding-right:12px"&gt;&lt;b&gt;Static&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Filtering for targets that do not move.&lt;br/&gt;&lt;i&gt;Use for:&lt;/i&gt; Targets known not to move at all.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td valign="top" style="padding-right:12px"&gt;&lt;b&gt;Reference target&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Filtering for static targets that detects occasional motions by itself.&lt;br/&gt;&lt;i&gt;Use for:&lt;/i&gt; Generally static objects that are moved now and then, such as room references.&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>FingertrackingAdministration</name>
    <message>
        <source>Administration of Fingertracking</source>
        <translation>Verwaltung des Fingertrackings</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Kalibrierung</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>F&amp;ingertracking</source>
        <translation>F&amp;ingertracking</translation>
    </message>
    <message>
        <source>&lt;b&gt;&lt;font color=red&gt;Fingertracking is not available!&lt;/font&gt;&lt;/b&gt;</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get max number of %1 hand bodies</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set number of %1 hand bodies to %2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&lt;b&gt;&lt;font color=red&gt;Max. number of Hands is reached!&lt;/font&gt;&lt;/b&gt;</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>FingertrackingAdministrationClass</name>
    <message>
        <source>Administration of Fingertracking</source>
        <translation>Verwaltung des Fingertrackings</translation>
    </message>
    <message>
        <source>&lt;b&gt;&lt;font color=red&gt;Fingertracking is not available!&lt;/font&gt;&lt;/b&gt;</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&amp;number of hands</source>
        <translation>&amp;Anzahl Hände</translation>
    </message>
    <message>
        <source>Adjust number of hands</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Available hands</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Open custom body calibration</source>
        <translation>Eigene Körperkalibrierung öffnen</translation>
    </message>
    <message>
        <source>&amp;Custom Calibration</source>
        <translation>&amp;Eigene Kalibrierung</translation>
    </message>
    <message>
        <source>Assign hand target from target library to selected hand</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&lt;&lt; S&amp;elect</source>
        <translation>&lt;&lt; &amp;Zuweisen</translation>
    </message>
    <message>
        <source>Remove target from selected hand</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&gt;&gt; &amp;Deselect</source>
        <translation>&gt;&gt; &amp;Entfernen</translation>
    </message>
    <message>
        <source>Available hand targets from target library</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Result of search</source>
        <translation>Ergebnis der Suche</translation>
    </message>
    <message>
        <source>found targets: 0; already calibrated: 0</source>
        <translation>gefundene Targets: 0; bereits kalibriert: 0</translation>
    </message>
    <message>
        <source>Progress of search</source>
        <translation>Fortschritt der Suche</translation>
    </message>
    <message>
        <source>Start search for hand targets in tracking volume</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>S&amp;tart search</source>
        <translation>Suche &amp;starten</translation>
    </message>
    <message>
        <source>Stop search</source>
        <translation>Suche anhalten</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>An&amp;halten</translation>
    </message>
</context>
<context>
    <name>FixedAngleDialog</name>
    <message>
        <source>Fixed Angle Settings</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Fixed angle settings: Enable and change fixed angles</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Help for fixed angle setting</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Alt+H</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Accept changes and close dialog</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Discard changes and close dialog</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>FixedAngleDlg</name>
    <message>
        <source>Error: Unable to check number of standard bodies</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to check name of standard body</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to check the calibration status of standard body</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to check target type</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to check fixed angle of standard body</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Fixed Angle</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>There is invalid data.</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>FixedAngleHelp</name>
    <message>
        <source>Fixed Angle Settings Help</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Set fixed angle for bodies:</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Check specific axes and adjust the angle values (+/- 20°)</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Setting is impossible for gray uncalibrated bodies.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Example:</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Result in data display:</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Alt+X</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>GripwandAdministration</name>
    <message>
        <source>Administration of Gripwands</source>
        <translation>Verwaltung der Gripwands</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Kalibrierung</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Gripwand</source>
        <translation>&amp;Gripwand</translation>
    </message>
    <message>
        <source>Error: Unable to get max number of %1 bodies</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set number of %1 bodies to %2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>Error: Unable to get model description of vendor %1 model %2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get info whether multiuser gripwand is available</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get info multiuser gripwand with head available</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get info whether multiuser gripwand is activated</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&lt;b&gt;&lt;font color=red&gt;Max. number of gripwands is reached!&lt;/font&gt;&lt;/b&gt;</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get info whether multiuser gripwand with head is activated</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get global filter6d status of Gripwand bodies</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set global filter6d status of Gripwand bodies</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>GripwandAdministrationClass</name>
    <message>
        <source>Administration of Gripwands</source>
        <translation>Verwaltung der Gripwands</translation>
    </message>
    <message>
        <source>Adjust number of gripwands</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&amp;number of gripwands</source>
        <translation>&amp;Anzahl Gripwands</translation>
    </message>
    <message>
        <source>Available gripwands</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Open filter dialog</source>
        <translation>Filterdialog öffnen</translation>
    </message>
    <message>
        <source>Fi&amp;lter</source>
        <translation>Fi&amp;lter</translation>
    </message>
    <message>
        <source>Open custom body calibration</source>
        <translation>Eigene Körperkalibrierung öffnen</translation>
    </message>
    <message>
        <source>&amp;Custom calibration</source>
        <translation>&amp;Eigene Kalibrierung</translation>
    </message>
    <message>
        <source>Assign gripwand target to selected gripwand</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&lt;&lt; S&amp;elect</source>
        <translation>&lt;&lt; &amp;Zuweisen</translation>
    </message>
    <message>
        <source>Remove gripwand target from selected gripwand</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&gt;&gt; &amp;Deselect</source>
        <translation>&gt;&gt; &amp;Entfernen</translation>
    </message>
    <message>
        <source>Available gripwand targets from target library</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Result of search</source>
        <translation>Ergebnis der Suche</translation>
    </message>
    <message>
        <source>found targets: 0; already calibrated: 0</source>
        <translation>gefundene Targets: 0; bereits kalibriert: 0</translation>
    </message>
    <message>
        <source>Progress of search</source>
        <translation>Fortschritt der Suche</translation>
    </message>
    <message>
        <source>Start search for gripwand targets in tracking volume</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>S&amp;tart search</source>
        <translation>Suche &amp;starten</translation>
    </message>
    <message>
        <source>Stop search</source>
        <translation>Suche anhalten</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>An&amp;halten</translation>
    </message>
    <message>
        <source>MultiUser head target:</source>
        <translation>Kopf-Target im Mehrbenutzerbetrieb:</translation>
    </message>
    <message>
        <source>Available gripwand MultiUser head targets</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>MtAdministration</name>
    <message>
        <source>Administration of Measurement Tools</source>
        <translation>Verwaltung der Messwerkzeuge</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Reference ID</source>
        <translation>Referenz-ID</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Kalibrierung</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>&amp;Measurement Tool</source>
        <translation>&amp;Messwerkzeug</translation>
    </message>
    <message>
        <source>&lt;b&gt;&lt;font color=red&gt;Measurement Tool is not available!&lt;/font&gt;&lt;/b&gt;</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get max number of %1 bodies</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set number of %1 bodies to %2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&lt;b&gt;&lt;font color=red&gt;Max. number of Measurement Tools is reached!&lt;/font&gt;&lt;/b&gt;</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&lt;b&gt;&lt;font color=red&gt;Max. number of Measurement references is reached!&lt;/font&gt;&lt;/b&gt;</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Continue?</source>
        <translation>Fortfahren?</translation>
    </message>
    <message>
        <source>Delete Measurement Tool reference body %1?</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Delete Measurement Tool reference body %1?
If yes, the assignment to the Measurement Tool will be deleted.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Unable to reset description of %1 %2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set ref. body</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Delete body %1 failed</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>After deactivating the reference,
the corresponding Measurement Tool will not be tracked.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>This target is already calibrated as standard target ID %1.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Delete the standard target ID %1?</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>MtAdministrationClass</name>
    <message>
        <source>Administration of Measurement Tools</source>
        <translation>Verwaltung der Messwerkzeuge</translation>
    </message>
    <message>
        <source>&lt;b&gt;&lt;font color=red&gt;Measurement Tool is not available!&lt;/font&gt;&lt;/b&gt;</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Adjust number of Measurement Tools</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&amp;number of Measurement Tools</source>
        <translation>&amp;Anzahl Messwerkzeuge</translation>
    </message>
    <message>
        <source>Available Measurement Tools</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Adjust number of Measurement Tool references</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>number of &amp;references</source>
        <translation>Anzahl &amp;Referenzen</translation>
    </message>
    <message>
        <source>Available Measurement Tool references</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Assign target from targetlibrary to selected Measurement Tool reference</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&lt;&lt; S&amp;elect</source>
        <translation>&lt;&lt; &amp;Zuweisen</translation>
    </message>
    <message>
        <source>Remove target from selected Measurement Tool reference</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&gt;&gt; &amp;Deselect</source>
        <translation>&gt;&gt; &amp;Entfernen</translation>
    </message>
    <message>
        <source>Filter target groups</source>
        <translation>Targetgruppen filtern</translation>
    </message>
    <message>
        <source>category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Available targets from target library</source>
        <translation>Verfügbare Targets der Targetbibliothek</translation>
    </message>
    <message>
        <source>Result of search</source>
        <translation>Ergebnis der Suche</translation>
    </message>
    <message>
        <source>found targets: 0; already calibrated: 0</source>
        <translation>gefundene Targets: 0; bereits kalibriert: 0</translation>
    </message>
    <message>
        <source>Progress of search</source>
        <translation>Fortschritt der Suche</translation>
    </message>
    <message>
        <source>Search targets in the tracking volume</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>S&amp;tart search</source>
        <translation>Suche &amp;starten</translation>
    </message>
    <message>
        <source>Stop search</source>
        <translation>Suche anhalten</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>An&amp;halten</translation>
    </message>
</context>
<context>
    <name>StandardAdministration</name>
    <message>
        <source>Administration of standard bodies</source>
        <translation>Verwaltung der Standardkörper</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>Geräte-ID</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Kalibrierung</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Standard</translation>
    </message>
    <message>
        <source>Error: Unable to get max number of %1 bodies</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set number of %1 bodies to %2</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&lt;b&gt;&lt;font color=red&gt;Max. number of bodies is reached!&lt;/font&gt;&lt;/b&gt;</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>After deactivating the reference target,
all targets will not be tracked.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Continue?</source>
        <translation>Fortfahren?</translation>
    </message>
    <message>
        <source>Error: Unable to get global filter6d status of standard bodies</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set global filter6d status of standard bodies</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>This target is already calibrated as Measurement Tool Reference MR%1.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Delete the Measurement Tool Reference MR%1?</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>%1 can bend
therefore a re-calibration is strongly recommended!</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>

(To avoid any changes of the geometry
mount the target to the device prior re-calibration)</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>StandardAdministrationClass</name>
    <message>
        <source>Administration of standard bodies</source>
        <translation>Verwaltung der Standardkörper</translation>
    </message>
    <message>
        <source>Adjust number of standard bodies</source>
        <translation>Anzahl der Standardkörper einstellen</translation>
    </message>
    <message>
        <source>&amp;number of bodies</source>
        <translation>&amp;Anzahl Körper</translation>
    </message>
    <message>
        <source>Move the selected body one position up</source>
        <translation>Den gewählten Körper eine Position nach oben schieben</translation>
    </message>
    <message>
        <source>Move the selected body one position down</source>
        <translation>Den gewählten Körper eine Position nach unten schieben</translation>
    </message>
    <message>
        <source>Available standard bodies</source>
        <translation>Verfügbare Standardkörper</translation>
    </message>
    <message>
        <source>Open filter dialog</source>
        <translation>Filterdialog öffnen</translation>
    </message>
    <message>
        <source>Fi&amp;lter</source>
        <translation>Fi&amp;lter</translation>
    </message>
    <message>
        <source>Open custom body calibration</source>
        <translation>Eigene Körperkalibrierung öffnen</translation>
    </message>
    <message>
        <source>&amp;Custom calibration</source>
        <translation>&amp;Eigene Kalibrierung</translation>
    </message>
    <message>
        <source>Assing target from target library to selected body</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&lt;&lt; S&amp;elect</source>
        <translation>&lt;&lt; &amp;Zuweisen</translation>
    </message>
    <message>
        <source>Remove target from selected body</source>
        <translation>Target vom gewählten Körper entfernen</translation>
    </message>
    <message>
        <source>&gt;&gt; &amp;Deselect</source>
        <translation>&gt;&gt; &amp;Entfernen</translation>
    </message>
    <message>
        <source>Filter target groups</source>
        <translation>Targetgruppen filtern</translation>
    </message>
    <message>
        <source>c&amp;ategory</source>
        <translation>K&amp;ategorie</translation>
    </message>
    <message>
        <source>Available targets from target library</source>
        <translation>Verfügbare Targets der Targetbibliothek</translation>
    </message>
    <message>
        <source>Result of search</source>
        <translation>Ergebnis der Suche</translation>
    </message>
    <message>
        <source>found targets: 0; already calibrated: 0</source>
        <translation>gefundene Targets: 0; bereits kalibriert: 0</translation>
    </message>
    <message>
        <source>Progress of search</source>
        <translation>Fortschritt der Suche</translation>
    </message>
    <message>
        <source>Serach for targets in the tracking volume</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>S&amp;tart search</source>
        <translation>Suche &amp;starten</translation>
    </message>
    <message>
        <source>Stop search</source>
        <translation>Suche anhalten</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>An&amp;halten</translation>
    </message>
</context>
<context>
    <name>TargetSearch</name>
    <message>
        <source>No targets could be identified in library</source>
        <translation>Keine Targets der Bibliothek erkannt</translation>
    </message>
    <message>
        <source>One target could be identified in library</source>
        <translation>Ein Target der Bibliothek erkannt</translation>
    </message>
    <message>
        <source>%1 targets could be identified in library</source>
        <translation>%1 Targets der Bibliothek erkannt</translation>
    </message>
    <message>
        <source>VELORA4</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to start target library calibration</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>. Calibration type is not available</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>. Calibration is already active.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>target library calibration started</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>%1 already calibrated</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error during target library calibration. Calibration aborted</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>target library calibration stopped</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>target library calibration cancelled</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>found targets: %1, already calibrated: %2</source>
        <translation>gefundene Targets: %1, bereits kalibriert: %2</translation>
    </message>
</context>
<context>
    <name>TargetStatus</name>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Short Name</source>
        <translation>Kurzname</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Benutzt</translation>
    </message>
    <message>
        <source>custom</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>no</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>Targetlibrary</name>
    <message>
        <source>Error: Unable to get target name</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get body type</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to get group name</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>TrackingDialog</name>
    <message>
        <source>Single Markers Settings</source>
        <translation>Einstellungen Einzelmarker</translation>
    </message>
    <message>
        <source>Adjust single marker settings</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Check calculation of 3DOF markers if needed</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&amp;calculation of 3DOF markers</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Check automatic restart of measurement after loss of sync signal if needed</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>automatic &amp;restart of measurement after loss of sync signal</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Define which axis of the room coordinate system is up for the 5DOF body</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>axis &amp;5DOF central</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&lt;p&gt;The output pulse of inertial tracking runs&lt;/p&gt;&lt;ul&gt;&lt;li&gt;synchronous to the frequency of the ZEM cameras,&lt;/li&gt;&lt;li&gt;synchronous to the frequency of the selected inertial sensor, or&lt;/li&gt;&lt;li&gt;at a custom output frequency.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;&lt;b&gt;Caution:&lt;/b&gt; do not set a frequency higher than the available devices deliver.&lt;/p&gt;</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>tracking frequency</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&amp;as ZEM cameras (see Synccard settings)</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>as &amp;inertial sensor</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>custom &amp;frequency (independent of cameras or sensors)</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source> Hz</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>&amp;Advanced</source>
        <translation>&amp;Erweitert</translation>
    </message>
    <message>
        <source>Accept changes and close dialog</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Discard changes and close dialog</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>TrackingDlg</name>
    <message>
        <source>Single Markers</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>TrackingSettings: Old version of Pelicam Controller</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>x = %1 mm, y = %2 mm, z = %3 mm</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set values of the 5DOF central axis</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set inertial tracking settings</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set inertial tracking synchronous to cameras</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set inertial tracking to sensor</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Unable to set inertial tracking frequency</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>TrackingPreferences</name>
    <message>
        <source>Error: Loading tracking settings preferences. File %1 cannot be opened for reading. Using built-in values</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Loading tracking settings preferences while parsing %1 (Line %2, Column %3) :
%4. Using built-in values</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Loading tracking settings preferences while parsing %1 : The file doesn't look like a valid preferences file. Using built-in values</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Writing tracking preferences. Directory %1 doesn't exist and cannot be created</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Error: Writing tracking preferences. File %1 cannot be opened for writing</source>
        <translation type="unfinished" />
    </message>
</context>
<context>
    <name>TrackingSettingBodyAdminModule</name>
    <message>
        <source>GUI Settings Tracking</source>
        <translation>GUI-Einstellungen Tracking</translation>
    </message>
    <message>
        <source>&amp;Tracking</source>
        <translation>&amp;Tracking</translation>
    </message>
    <message>
        <source>Change settings of the 6DOF standard bodies and the 3DOF markers and body administration</source>
        <translation>Einstellungen der 6DOF-Standardkörper, der 3DOF-Marker und der Körperverwaltung ändern</translation>
    </message>
    <message>
        <source>&amp;Single markers</source>
        <translation>&amp;Einzelmarker</translation>
    </message>
    <message>
        <source>Settings of all bodies</source>
        <translation>Einstellungen aller Körper</translation>
    </message>
    <message>
        <source>&amp;Body administration</source>
        <translation>&amp;Körperverwaltung</translation>
    </message>
    <message>
        <source>F8</source>
        <translation>F8</translation>
    </message>
</context>
</TS>