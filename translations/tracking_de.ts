<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
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
        <translation>rx</translation>
    </message>
    <message>
        <source>ry</source>
        <translation>ry</translation>
    </message>
    <message>
        <source>rz</source>
        <translation>rz</translation>
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
        <translation>Eigene &amp;Kalibrierung</translation>
    </message>
    <message>
        <source>Alt+C</source>
        <translation>Alt+K</translation>
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
    <name>BodyLoader</name>
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
</context>
<context>
    <name>BodyOperations</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>A de-activated body cannot be set as reference.
Please activate this body before.</source>
        <translation>Ein deaktivierter Körper kann nicht Referenz werden.
Bitte aktivieren Sie den Körper zuerst.</translation>
    </message>
    <message>
        <source>Unknown reset of %1 %2!</source>
        <translation>Unbekanntes Zurücksetzen von %1 %2!</translation>
    </message>
    <message>
        <source>Reset %1 %2
to Target-Library geometry?</source>
        <translation>%1 %2 auf die Geometrie
der Targetbibliothek zurücksetzen?</translation>
    </message>
    <message>
        <source>Reset of %1 %2 failed!</source>
        <translation>Zurücksetzen von %1 %2 fehlgeschlagen!</translation>
    </message>
    <message>
        <source>Reset %1 %2
to sensor stored values?</source>
        <translation>%1 %2 auf die im Sensor
gespeicherten Werte zurücksetzen?</translation>
    </message>
    <message>
        <source>Reset %1 %2?</source>
        <translation>%1 %2 zurücksetzen?</translation>
    </message>
    <message>
        <source>Reset %1 %2?
Hand eye calibration will be deleted!</source>
        <translation>%1 %2 zurücksetzen?
Die Hand-Auge-Kalibrierung wird gelöscht!</translation>
    </message>
    <message>
        <source>Delete geometry of %1 %2?
If yes, the assignment as reference to other bodies will be deleted.</source>
        <translation>Geometrie von %1 %2 löschen?
Dann wird auch die Zuordnung als Referenz anderer Körper gelöscht.</translation>
    </message>
    <message>
        <source>Delete assignment of sensor %1 and 
delete geometry of %2 %3?</source>
        <translation>Zuordnung von Sensor %1 und 
Geometrie von %2 %3 löschen?</translation>
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
        <source>Switching %1 %2 and %3 failed!</source>
        <translation>Tauschen von %1 %2 und %3 fehlgeschlagen!</translation>
    </message>
</context>
<context>
    <name>BodyTypeAdministrationTab</name>
    <message>
        <source>VELORA4</source>
        <translation>VELORA4</translation>
    </message>
    <message>
        <source>Decreasing the number of standard bodies will disable the reference!

</source>
        <translation>Wenn die Anzahl der Standardkörper sinkt, wird die Referenz abgeschaltet!

</translation>
    </message>
    <message>
        <source>Continue?</source>
        <translation>Fortfahren?</translation>
    </message>
</context>
<context>
    <name>CellToolTips</name>
    <message>
        <source>Not calibrated: assign a library target or run a custom calibration</source>
        <translation>Nicht kalibriert: ein Target aus der Targetbibliothek zuweisen oder eine eigene Kalibrierung durchführen</translation>
    </message>
    <message>
        <source>Calibrated optically; the inertial sensor has no hand-eye calibration</source>
        <translation>Optisch kalibriert; der Inertialsensor hat keine Hand-Auge-Kalibrierung</translation>
    </message>
    <message>
        <source>Calibrated</source>
        <translation>Kalibriert</translation>
    </message>
    <message>
        <source>Click to delete the geometry and the sensor assignment of this body</source>
        <translation>Klicken, um die Geometrie und die Sensorzuordnung dieses Körpers zu löschen</translation>
    </message>
    <message>
        <source>Click to delete the geometry of this body</source>
        <translation>Klicken, um die Geometrie dieses Körpers zu löschen</translation>
    </message>
    <message>
        <source>Nothing to delete: the body has no geometry and no inertial sensor</source>
        <translation>Nichts zu löschen: Der Körper hat weder Geometrie noch Inertialsensor</translation>
    </message>
    <message>
        <source>Click to reset the body to its target-library geometry</source>
        <translation>Klicken, um den Körper auf seine Geometrie aus der Targetbibliothek zurückzusetzen</translation>
    </message>
    <message>
        <source>Click to reset the body&apos;s inertial sensor</source>
        <translation>Klicken, um den Inertialsensor des Körpers zurückzusetzen</translation>
    </message>
    <message>
        <source>A sensor reset needs inertial tracking, and no warm-up running</source>
        <translation>Ein Sensor-Reset braucht Inertial-Tracking und kein laufendes Aufwärmen</translation>
    </message>
    <message>
        <source>Nothing to reset: the body has its target-library geometry</source>
        <translation>Nichts zurückzusetzen: Der Körper hat seine Geometrie aus der Targetbibliothek</translation>
    </message>
    <message>
        <source>Nothing to reset: the body has no target-library geometry and no sensor</source>
        <translation>Nichts zurückzusetzen: Der Körper hat weder Geometrie aus der Targetbibliothek noch Sensor</translation>
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
        <translation>Körper wählen, dessen 6DOF-Filter eingestellt wird</translation>
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
        <source>&lt;html&gt;Choose a 6DOF filter preset, or &quot;custom&quot; for your own settings.&lt;br&gt;A preset is a pre-definded set of strength, prediction and mode.&lt;/html&gt;</source>
        <translation>&lt;html&gt;Eine 6DOF-Filtervorgabe wählen oder „eigene“ für eigene Einstellungen.&lt;br&gt;Eine Vorgabe ist ein festgelegter Satz aus Stärke, Vorhersage und Modus.&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&amp;strength</source>
        <translation>&amp;Stärke</translation>
    </message>
    <message>
        <source>Adjust 6DOF filter strength. Min. = 0.01, max. = 0.99</source>
        <translation>Stärke des 6DOF-Filters einstellen. Min. = 0,01, max. = 0,99</translation>
    </message>
    <message>
        <source>pre&amp;diction [ms]</source>
        <translation>Vo&amp;rhersage [ms]</translation>
    </message>
    <message>
        <source>&amp;mode</source>
        <translation>&amp;Modus</translation>
    </message>
    <message>
        <source>Adjust 6DOF filter mode</source>
        <translation>Modus des 6DOF-Filters einstellen</translation>
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
        <source>6DOF filter for standard bodies not available</source>
        <translation>6DOF-Filter für Standardkörper nicht verfügbar</translation>
    </message>
    <message>
        <source>6DOF filter for gripwands not available</source>
        <translation>6DOF-Filter für Gripwands nicht verfügbar</translation>
    </message>
    <message>
        <source>6DOF filter not available</source>
        <translation>6DOF-Filter nicht verfügbar</translation>
    </message>
    <message>
        <source>standard body %1</source>
        <translation>Standardkörper %1</translation>
    </message>
    <message>
        <source>Gripwand body %1</source>
        <translation>Gripwand-Körper %1</translation>
    </message>
</context>
<context>
    <name>FilterHelpClass</name>
    <message>
        <source>Help Filter</source>
        <translation>Hilfe Filter</translation>
    </message>
    <message>
        <source>Help for filter settings</source>
        <translation>Hilfe zu den Filtereinstellungen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;body&gt;&lt;p style=&quot;margin-top:10px&quot;&gt;&lt;b&gt;Strength&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Low values mean less filtering: the output reacts faster but jitters more.&lt;br/&gt;High values mean stronger filtering: the output is smoother but reacts more slowly.&lt;/p&gt;&lt;p style=&quot;margin-top:10px&quot;&gt;&lt;b&gt;Prediction&lt;/b&gt;&lt;/p&gt;&lt;p&gt;The output is predicted the given time ahead to make up for the latency of tracking and rendering.&lt;br/&gt;Too high positive values can increase jitter and reduce precision.&lt;br/&gt;Negative values smooth the output at the cost of higher latency.&lt;/p&gt;&lt;p style=&quot;margin-top:10px&quot;&gt;&lt;b&gt;Mode&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Specifies the elementary behavior of the filter. Several option are available:&lt;/p&gt;&lt;table cellspacing=&quot;0&quot; cellpadding=&quot;3&quot;&gt;&lt;tr&gt;&lt;td valign=&quot;top&quot; style=&quot;padding-right:12px&quot;&gt;&lt;b&gt;Adaptive fast&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Adapts the filter to the observed motion.&lt;br/&gt;&lt;i&gt;Use for:&lt;/i&gt; Moving targets that change between fast and slow motions, such as Gripwands.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td valign=&quot;top&quot; style=&quot;padding-right:12px&quot;&gt;&lt;b&gt;Adaptive slow&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Adapts the filter to the observed motion, with stronger filtering of fast motions.&lt;br/&gt;&lt;i&gt;Use for:&lt;/i&gt; Targets with slow and medium motions.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td valign=&quot;top&quot; style=&quot;padding-right:12px&quot;&gt;&lt;b&gt;Fast&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Filtering for fast motions.&lt;br/&gt;&lt;i&gt;Use for:&lt;/i&gt; Targets that need a quick reaction, such as head-mounted displays.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td valign=&quot;top&quot; style=&quot;padding-right:12px&quot;&gt;&lt;b&gt;Slow&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Filtering for medium motions.&lt;br/&gt;&lt;i&gt;Use for:&lt;/i&gt; Targets that need a quick reaction with slow motions.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td valign=&quot;top&quot; style=&quot;padding-right:12px&quot;&gt;&lt;b&gt;Static&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Filtering for targets that do not move.&lt;br/&gt;&lt;i&gt;Use for:&lt;/i&gt; Targets known not to move at all.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td valign=&quot;top&quot; style=&quot;padding-right:12px&quot;&gt;&lt;b&gt;Reference target&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Filtering for static targets that detects occasional motions by itself.&lt;br/&gt;&lt;i&gt;Use for:&lt;/i&gt; Generally static objects that are moved now and then, such as room references.&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;body&gt;&lt;p style=&quot;margin-top:10px&quot;&gt;&lt;b&gt;Stärke&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Kleine Werte bedeuten wenig Filterung: die Ausgabe reagiert schneller, zittert aber mehr.&lt;br/&gt;Große Werte bedeuten starke Filterung: die Ausgabe ist ruhiger, reagiert aber langsamer.&lt;/p&gt;&lt;p style=&quot;margin-top:10px&quot;&gt;&lt;b&gt;Vorhersage&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Die Ausgabe wird um die angegebene Zeit vorausberechnet, um die Latenz von Tracking und Darstellung auszugleichen.&lt;br/&gt;Zu große positive Werte können das Zittern verstärken und die Genauigkeit verringern.&lt;br/&gt;Negative Werte glätten die Ausgabe auf Kosten höherer Latenz.&lt;/p&gt;&lt;p style=&quot;margin-top:10px&quot;&gt;&lt;b&gt;Modus&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Legt das grundlegende Verhalten des Filters fest. Es gibt mehrere Möglichkeiten:&lt;/p&gt;&lt;table cellspacing=&quot;0&quot; cellpadding=&quot;3&quot;&gt;&lt;tr&gt;&lt;td valign=&quot;top&quot; style=&quot;padding-right:12px&quot;&gt;&lt;b&gt;Adaptiv schnell&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Passt den Filter der beobachteten Bewegung an.&lt;br/&gt;&lt;i&gt;Für:&lt;/i&gt; bewegte Targets, die zwischen schnellen und langsamen Bewegungen wechseln, etwa Gripwands.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td valign=&quot;top&quot; style=&quot;padding-right:12px&quot;&gt;&lt;b&gt;Adaptiv langsam&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Passt den Filter der beobachteten Bewegung an, mit stärkerer Filterung schneller Bewegungen.&lt;br/&gt;&lt;i&gt;Für:&lt;/i&gt; Targets mit langsamen und mittleren Bewegungen.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td valign=&quot;top&quot; style=&quot;padding-right:12px&quot;&gt;&lt;b&gt;Schnell&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Filterung für schnelle Bewegungen.&lt;br/&gt;&lt;i&gt;Für:&lt;/i&gt; Targets, die schnell reagieren müssen, etwa Head-Mounted Displays.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td valign=&quot;top&quot; style=&quot;padding-right:12px&quot;&gt;&lt;b&gt;Langsam&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Filterung für mittlere Bewegungen.&lt;br/&gt;&lt;i&gt;Für:&lt;/i&gt; Targets, die bei langsamen Bewegungen schnell reagieren müssen.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td valign=&quot;top&quot; style=&quot;padding-right:12px&quot;&gt;&lt;b&gt;Statisch&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Filterung für Targets, die sich nicht bewegen.&lt;br/&gt;&lt;i&gt;Für:&lt;/i&gt; Targets, die sich sicher gar nicht bewegen.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td valign=&quot;top&quot; style=&quot;padding-right:12px&quot;&gt;&lt;b&gt;Referenztarget&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Filterung für ruhende Targets, die gelegentliche Bewegungen selbst erkennt.&lt;br/&gt;&lt;i&gt;Für:&lt;/i&gt; meist ruhende Objekte, die ab und zu bewegt werden, etwa Raumreferenzen.&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
        <translation>&lt;b&gt;&lt;font color=red&gt;Fingertracking ist nicht verfügbar!&lt;/font&gt;&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;&lt;font color=red&gt;Max. number of Hands is reached!&lt;/font&gt;&lt;/b&gt;</source>
        <translation>&lt;b&gt;&lt;font color=red&gt;Höchstzahl der Hände ist erreicht!&lt;/font&gt;&lt;/b&gt;</translation>
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
        <translation>&lt;b&gt;&lt;font color=red&gt;Fingertracking ist nicht verfügbar!&lt;/font&gt;&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&amp;number of hands</source>
        <translation>&amp;Anzahl Hände</translation>
    </message>
    <message>
        <source>Adjust number of hands</source>
        <translation>Anzahl der Hände einstellen</translation>
    </message>
    <message>
        <source>Available hands</source>
        <translation>Verfügbare Hände</translation>
    </message>
    <message>
        <source>Open custom body calibration</source>
        <translation>Eigene Körperkalibrierung öffnen</translation>
    </message>
    <message>
        <source>&amp;Custom Calibration</source>
        <translation>Eigene &amp;Kalibrierung</translation>
    </message>
    <message>
        <source>Assign hand target from target library to selected hand</source>
        <translation>Hand-Target der Targetbibliothek der gewählten Hand zuweisen</translation>
    </message>
    <message>
        <source>&lt;&lt; S&amp;elect</source>
        <translation>&lt;&lt; &amp;Zuweisen</translation>
    </message>
    <message>
        <source>Remove target from selected hand</source>
        <translation>Target von der gewählten Hand entfernen</translation>
    </message>
    <message>
        <source>&gt;&gt; &amp;Deselect</source>
        <translation>&gt;&gt; &amp;Entfernen</translation>
    </message>
    <message>
        <source>Available hand targets from target library</source>
        <translation>Verfügbare Hand-Targets der Targetbibliothek</translation>
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
        <translation>Suche nach Hand-Targets im Trackingvolumen starten</translation>
    </message>
    <message>
        <source>S&amp;tart search</source>
        <translation>Suche s&amp;tarten</translation>
    </message>
    <message>
        <source>Stop search</source>
        <translation>Suche anhalten</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>Sto&amp;pp</translation>
    </message>
</context>
<context>
    <name>FixedAngleDialog</name>
    <message>
        <source>Fixed Angle Settings</source>
        <translation>Einstellungen feste Winkel</translation>
    </message>
    <message>
        <source>Fixed angle settings: Enable and change fixed angles</source>
        <translation>Feste Winkel: einschalten und ändern</translation>
    </message>
    <message>
        <source>Help for fixed angle setting</source>
        <translation>Hilfe zu festen Winkeln</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Alt+H</source>
        <translation>Alt+H</translation>
    </message>
    <message>
        <source>Accept changes and close dialog</source>
        <translation>Änderungen übernehmen und Dialog schließen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Discard changes and close dialog</source>
        <translation>Änderungen verwerfen und Dialog schließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>FixedAngleDlg</name>
    <message>
        <source>Fixed Angle</source>
        <translation>Fester Winkel</translation>
    </message>
    <message>
        <source>There is invalid data.</source>
        <translation>Es gibt ungültige Werte.</translation>
    </message>
</context>
<context>
    <name>FixedAngleHelp</name>
    <message>
        <source>Fixed Angle Settings Help</source>
        <translation>Hilfe zu festen Winkeln</translation>
    </message>
    <message>
        <source>Set fixed angle for bodies:</source>
        <translation>Feste Winkel für Körper setzen:</translation>
    </message>
    <message>
        <source>Check specific axes and adjust the angle values (+/- 20°)</source>
        <translation>Einzelne Achsen ankreuzen und die Winkel einstellen (+/- 20°)</translation>
    </message>
    <message>
        <source>Setting is impossible for gray uncalibrated bodies.</source>
        <translation>Für graue, unkalibrierte Körper ist keine Einstellung möglich.</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Beispiel:</translation>
    </message>
    <message>
        <source>Result in data display:</source>
        <translation>Ergebnis in der Datenanzeige:</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Alt+X</source>
        <translation>Alt+B</translation>
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
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>&lt;b&gt;&lt;font color=red&gt;Max. number of gripwands is reached!&lt;/font&gt;&lt;/b&gt;</source>
        <translation>&lt;b&gt;&lt;font color=red&gt;Höchstzahl der Gripwands ist erreicht!&lt;/font&gt;&lt;/b&gt;</translation>
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
        <translation>Anzahl der Gripwands einstellen</translation>
    </message>
    <message>
        <source>&amp;number of gripwands</source>
        <translation>&amp;Anzahl Gripwands</translation>
    </message>
    <message>
        <source>Available gripwands</source>
        <translation>Verfügbare Gripwands</translation>
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
        <translation>Eigene &amp;Kalibrierung</translation>
    </message>
    <message>
        <source>Assign gripwand target to selected gripwand</source>
        <translation>Gripwand-Target der gewählten Gripwand zuweisen</translation>
    </message>
    <message>
        <source>&lt;&lt; S&amp;elect</source>
        <translation>&lt;&lt; &amp;Zuweisen</translation>
    </message>
    <message>
        <source>Remove gripwand target from selected gripwand</source>
        <translation>Gripwand-Target von der gewählten Gripwand entfernen</translation>
    </message>
    <message>
        <source>&gt;&gt; &amp;Deselect</source>
        <translation>&gt;&gt; &amp;Entfernen</translation>
    </message>
    <message>
        <source>Available gripwand targets from target library</source>
        <translation>Verfügbare Gripwand-Targets der Targetbibliothek</translation>
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
        <translation>Suche nach Gripwand-Targets im Trackingvolumen starten</translation>
    </message>
    <message>
        <source>S&amp;tart search</source>
        <translation>Suche s&amp;tarten</translation>
    </message>
    <message>
        <source>Stop search</source>
        <translation>Suche anhalten</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>Sto&amp;pp</translation>
    </message>
    <message>
        <source>MultiUser head target:</source>
        <translation>Kopf-Target im Mehrbenutzerbetrieb:</translation>
    </message>
    <message>
        <source>Available gripwand MultiUser head targets</source>
        <translation>Verfügbare Kopf-Targets der Gripwands im Mehrbenutzerbetrieb</translation>
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
        <translation>&lt;b&gt;&lt;font color=red&gt;Messwerkzeug ist nicht verfügbar!&lt;/font&gt;&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;&lt;font color=red&gt;Max. number of Measurement Tools is reached!&lt;/font&gt;&lt;/b&gt;</source>
        <translation>&lt;b&gt;&lt;font color=red&gt;Höchstzahl der Messwerkzeuge ist erreicht!&lt;/font&gt;&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;&lt;font color=red&gt;Max. number of Measurement references is reached!&lt;/font&gt;&lt;/b&gt;</source>
        <translation>&lt;b&gt;&lt;font color=red&gt;Höchstzahl der Messreferenzen ist erreicht!&lt;/font&gt;&lt;/b&gt;</translation>
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
        <translation>Referenzkörper %1 des Messwerkzeugs löschen?</translation>
    </message>
    <message>
        <source>Delete Measurement Tool reference body %1?
If yes, the assignment to the Measurement Tool will be deleted.</source>
        <translation>Referenzkörper %1 des Messwerkzeugs löschen?
Dann wird auch die Zuordnung zum Messwerkzeug gelöscht.</translation>
    </message>
    <message>
        <source>Delete body %1 failed</source>
        <translation>Löschen von Körper %1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>After deactivating the reference,
the corresponding Measurement Tool will not be tracked.</source>
        <translation>Nach dem Deaktivieren der Referenz
wird das zugehörige Messwerkzeug nicht mehr getrackt.</translation>
    </message>
    <message>
        <source>This target is already calibrated as standard target ID %1.</source>
        <translation>Dieses Target ist bereits als Standardtarget ID %1 kalibriert.</translation>
    </message>
    <message>
        <source>Delete the standard target ID %1?</source>
        <translation>Standardtarget ID %1 löschen?</translation>
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
        <translation>&lt;b&gt;&lt;font color=red&gt;Messwerkzeug ist nicht verfügbar!&lt;/font&gt;&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Adjust number of Measurement Tools</source>
        <translation>Anzahl der Messwerkzeuge einstellen</translation>
    </message>
    <message>
        <source>&amp;number of Measurement Tools</source>
        <translation>&amp;Anzahl Messwerkzeuge</translation>
    </message>
    <message>
        <source>Available Measurement Tools</source>
        <translation>Verfügbare Messwerkzeuge</translation>
    </message>
    <message>
        <source>Adjust number of Measurement Tool references</source>
        <translation>Anzahl der Messwerkzeug-Referenzen einstellen</translation>
    </message>
    <message>
        <source>number of &amp;references</source>
        <translation>Anzahl &amp;Referenzen</translation>
    </message>
    <message>
        <source>Available Measurement Tool references</source>
        <translation>Verfügbare Messwerkzeug-Referenzen</translation>
    </message>
    <message>
        <source>Assign target from targetlibrary to selected Measurement Tool reference</source>
        <translation>Target der Targetbibliothek der gewählten Messwerkzeug-Referenz zuweisen</translation>
    </message>
    <message>
        <source>&lt;&lt; S&amp;elect</source>
        <translation>&lt;&lt; &amp;Zuweisen</translation>
    </message>
    <message>
        <source>Remove target from selected Measurement Tool reference</source>
        <translation>Target von der gewählten Messwerkzeug-Referenz entfernen</translation>
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
        <translation>Targets im Trackingvolumen suchen</translation>
    </message>
    <message>
        <source>S&amp;tart search</source>
        <translation>Suche s&amp;tarten</translation>
    </message>
    <message>
        <source>Stop search</source>
        <translation>Suche anhalten</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>Sto&amp;pp</translation>
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
        <source>&lt;b&gt;&lt;font color=red&gt;Max. number of bodies is reached!&lt;/font&gt;&lt;/b&gt;</source>
        <translation>&lt;b&gt;&lt;font color=red&gt;Höchstzahl der Körper ist erreicht!&lt;/font&gt;&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>After deactivating the reference target,
all targets will not be tracked.</source>
        <translation>Nach dem Deaktivieren des Referenztargets
wird kein Target mehr getrackt.</translation>
    </message>
    <message>
        <source>Continue?</source>
        <translation>Fortfahren?</translation>
    </message>
    <message>
        <source>This target is already calibrated as Measurement Tool Reference MR%1.</source>
        <translation>Dieses Target ist bereits als Messwerkzeug-Referenz MR%1 kalibriert.</translation>
    </message>
    <message>
        <source>Delete the Measurement Tool Reference MR%1?</source>
        <translation>Messwerkzeug-Referenz MR%1 löschen?</translation>
    </message>
    <message>
        <source>%1 can bend
therefore a re-calibration is strongly recommended!</source>
        <translation>%1 kann sich verbiegen,
daher wird eine Nachkalibrierung dringend empfohlen!</translation>
    </message>
    <message>
        <source>

(To avoid any changes of the geometry
mount the target to the device prior re-calibration)</source>
        <translation>

(Damit sich die Geometrie nicht ändert,
das Target vor der Nachkalibrierung am Gerät montieren)</translation>
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
        <translation>Eigene &amp;Kalibrierung</translation>
    </message>
    <message>
        <source>Assing target from target library to selected body</source>
        <translation>Target der Targetbibliothek dem gewählten Körper zuweisen</translation>
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
        <translation>Katego&amp;rie</translation>
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
        <translation>Targets im Trackingvolumen suchen</translation>
    </message>
    <message>
        <source>S&amp;tart search</source>
        <translation>Suche s&amp;tarten</translation>
    </message>
    <message>
        <source>Stop search</source>
        <translation>Suche anhalten</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>Sto&amp;pp</translation>
    </message>
</context>
<context>
    <name>TargetAssignment</name>
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
        <translation>VELORA4</translation>
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
        <translation>eigene</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
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
        <translation>Einstellungen der Einzelmarker anpassen</translation>
    </message>
    <message>
        <source>Check calculation of 3DOF markers if needed</source>
        <translation>Ankreuzen, wenn 3DOF-Marker berechnet werden sollen</translation>
    </message>
    <message>
        <source>&amp;calculation of 3DOF markers</source>
        <translation>&amp;Berechnung von 3DOF-Markern</translation>
    </message>
    <message>
        <source>Check automatic restart of measurement after loss of sync signal if needed</source>
        <translation>Ankreuzen, wenn die Messung nach Verlust des Sync-Signals automatisch neu starten soll</translation>
    </message>
    <message>
        <source>automatic &amp;restart of measurement after loss of sync signal</source>
        <translation>automatischer &amp;Neustart der Messung nach Verlust des Sync-Signals</translation>
    </message>
    <message>
        <source>Define which axis of the room coordinate system is up for the 5DOF body</source>
        <translation>Festlegen, welche Achse des Raumkoordinatensystems für den 5DOF-Körper nach oben zeigt</translation>
    </message>
    <message>
        <source>axis &amp;5DOF central</source>
        <translation>&amp;5DOF-Zentralachse</translation>
    </message>
    <message>
        <source>&lt;p&gt;The output pulse of inertial tracking runs&lt;/p&gt;&lt;ul&gt;&lt;li&gt;synchronous to the frequency of the ZEM cameras,&lt;/li&gt;&lt;li&gt;synchronous to the frequency of the selected inertial sensor, or&lt;/li&gt;&lt;li&gt;at a custom output frequency.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;&lt;b&gt;Caution:&lt;/b&gt; do not set a frequency higher than the available devices deliver.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Der Ausgabetakt des Inertialtrackings läuft&lt;/p&gt;&lt;ul&gt;&lt;li&gt;synchron zur Frequenz der ZEM-Kameras,&lt;/li&gt;&lt;li&gt;synchron zur Frequenz des gewählten Inertialsensors oder&lt;/li&gt;&lt;li&gt;mit einer eigenen Ausgabefrequenz.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;&lt;b&gt;Achtung:&lt;/b&gt; keine höhere Frequenz einstellen, als die vorhandenen Geräte liefern.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>tracking frequency</source>
        <translation>Trackingfrequenz</translation>
    </message>
    <message>
        <source>&amp;as ZEM cameras (see Synccard settings)</source>
        <translation>wie ZEM-&amp;Kameras (siehe Synccard-Einstellungen)</translation>
    </message>
    <message>
        <source>as &amp;inertial sensor</source>
        <translation>wie &amp;Inertialsensor</translation>
    </message>
    <message>
        <source>custom &amp;frequency (independent of cameras or sensors)</source>
        <translation>eigene &amp;Frequenz (unabhängig von Kameras und Sensoren)</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>&amp;Advanced</source>
        <translation>&amp;Erweitert</translation>
    </message>
    <message>
        <source>Accept changes and close dialog</source>
        <translation>Änderungen übernehmen und Dialog schließen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Discard changes and close dialog</source>
        <translation>Änderungen verwerfen und Dialog schließen</translation>
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
        <translation>Einzelmarker</translation>
    </message>
    <message>
        <source>x = %1 mm, y = %2 mm, z = %3 mm</source>
        <translation>x = %1 mm, y = %2 mm, z = %3 mm</translation>
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
