<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>DemoOptions</name>
    <message>
        <source>Loads the tracking settings plug-in into a small host window and connects it to a simulated tracking controller. Every command the plug-in sends shows in the log.
Without a display it renders every dialog and tab to PNG files instead.</source>
        <translation>Lädt das Plug-in für Tracking-Einstellungen in ein kleines Host-Fenster und verbindet es mit einem simulierten Tracking-Controller. Jedes Kommando des Plug-ins erscheint im Protokoll.
Ohne Bildschirm zeichnet es stattdessen jeden Dialog und jede Registerkarte in PNG-Dateien.</translation>
    </message>
    <message>
        <source>path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Start the controller from &lt;file&gt;, or from the built-in scenario of that name (see --list-scenarios).</source>
        <translation>Den Controller aus &lt;Datei&gt; starten oder aus dem eingebauten Szenario dieses Namens (siehe --list-scenarios).</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>List the built-in scenarios and exit.</source>
        <translation>Die eingebauten Szenarien auflisten und beenden.</translation>
    </message>
    <message>
        <source>Controller software version, overriding the scenario&apos;s.</source>
        <translation>Version der Controller-Software, statt der des Szenarios.</translation>
    </message>
    <message>
        <source>major.minor.patch</source>
        <translation>major.minor.patch</translation>
    </message>
    <message>
        <source>Tracking-system model name, overriding the scenario&apos;s.</source>
        <translation>Modellname des Tracking-Systems, statt dem des Szenarios.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Tracking-system version, overriding the scenario&apos;s.</source>
        <translation>Version des Tracking-Systems, statt der des Szenarios.</translation>
    </message>
    <message>
        <source>Run the module in observer mode.</source>
        <translation>Das Modul im Beobachtermodus betreiben.</translation>
    </message>
    <message>
        <source>Render the window and every dialog and tab of the module to PNG files in &lt;folder&gt;, print their paths and quit (what happens anyway without a display).</source>
        <translation>Das Fenster und jeden Dialog und jede Registerkarte des Moduls als PNG-Dateien in &lt;Ordner&gt; zeichnen, ihre Pfade ausgeben und beenden (so geschieht es ohne Bildschirm ohnehin).</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Load the plug-in, print its name, version and file, and quit.</source>
        <translation>Das Plug-in laden, Name, Version und Datei ausgeben und beenden.</translation>
    </message>
    <message>
        <source>Write the controller log to &lt;file&gt; as it happens.</source>
        <translation>Das Controller-Protokoll laufend in &lt;Datei&gt; schreiben.</translation>
    </message>
    <message>
        <source>On exit, save the controller&apos;s state as a scenario &lt;file&gt; that loads back to it.</source>
        <translation>Beim Beenden den Zustand des Controllers als Szenario &lt;Datei&gt; speichern, das ihn wiederherstellt.</translation>
    </message>
    <message>
        <source>Show the module in &lt;language&gt; (for example de), as a host in that language would.</source>
        <translation>Das Modul in &lt;Sprache&gt; zeigen (zum Beispiel de), wie ein Host in dieser Sprache.</translation>
    </message>
    <message>
        <source>language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Unerwartetes Argument: %1</translation>
    </message>
    <message>
        <source>No scenario file or built-in scenario &quot;%1&quot; (see --list-scenarios)</source>
        <translation>Keine Szenariodatei und kein eingebautes Szenario „%1“ (siehe --list-scenarios)</translation>
    </message>
    <message>
        <source>--%1 wants MAJOR.MINOR.PATCH, not &quot;%2&quot;</source>
        <translation>--%1 erwartet MAJOR.MINOR.PATCH, nicht „%2“</translation>
    </message>
    <message>
        <source>Try --help.</source>
        <translation>Siehe --help.</translation>
    </message>
    <message>
        <source>No display: rendering every dialog and tab of the scenario to %1</source>
        <translation>Kein Bildschirm: jeder Dialog und jede Registerkarte des Szenarios wird nach %1 gezeichnet</translation>
    </message>
    <message>
        <source>No translation %1; its texts stay in English.</source>
        <translation>Keine Übersetzung %1; diese Texte bleiben englisch.</translation>
    </message>
    <message>
        <source>name[:options]</source>
        <translation>Name[:Optionen]</translation>
    </message>
    <message>
        <source>Qt&apos;s platform plug-in: xcb, wayland, offscreen, ...</source>
        <translation>Qts Plattform-Plug-in: xcb, wayland, offscreen, ...</translation>
    </message>
    <message>
        <source>Folder of the platform plug-ins.</source>
        <translation>Ordner der Plattform-Plug-ins.</translation>
    </message>
    <message>
        <source>theme</source>
        <translation>Thema</translation>
    </message>
    <message>
        <source>Platform theme.</source>
        <translation>Plattformthema.</translation>
    </message>
    <message>
        <source>style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Widget style: Fusion, Windows, ...</source>
        <translation>Widget-Stil: Fusion, Windows, ...</translation>
    </message>
    <message>
        <source>Style sheet for every widget.</source>
        <translation>Stylesheet für alle Widgets.</translation>
    </message>
    <message>
        <source>Lay out from right to left.</source>
        <translation>Von rechts nach links anordnen.</translation>
    </message>
    <message>
        <source>geometry</source>
        <translation>Geometrie</translation>
    </message>
    <message>
        <source>Geometry of the first window, as in 800x600+50+50.</source>
        <translation>Geometrie des ersten Fensters, etwa 800x600+50+50.</translation>
    </message>
    <message>
        <source>title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Title of the first window.</source>
        <translation>Titel des ersten Fensters.</translation>
    </message>
    <message>
        <source>display</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>X11 display to use.</source>
        <translation>Zu verwendendes X11-Display.</translation>
    </message>
    <message>
        <source>Print the number of widgets left at exit.</source>
        <translation>Beim Beenden die Zahl der übrigen Widgets ausgeben.</translation>
    </message>
    <message>
        <source>Load the plug-in from &lt;path&gt; instead of %1.</source>
        <translation>Das Plug-in aus &lt;Pfad&gt; laden statt aus %1.</translation>
    </message>
    <message>
        <source>Did you mean --%1?</source>
        <translation>Meinten Sie --%1?</translation>
    </message>
    <message>
        <source>--save-scenario: %1 cannot be written (is its folder there and writable?)</source>
        <translation>--save-scenario: %1 kann nicht geschrieben werden (gibt es den Ordner, und ist er beschreibbar?)</translation>
    </message>
</context>
<context>
    <name>DemoWindow</name>
    <message>
        <source>Velora demo host</source>
        <translation>Velora-Demo-Host</translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Save &amp;log...</source>
        <translation>&amp;Protokoll speichern...</translation>
    </message>
    <message>
        <source>Save &amp;scenario...</source>
        <translation>&amp;Szenario speichern...</translation>
    </message>
    <message>
        <source>Write the controller&apos;s state as a scenario file</source>
        <translation>Den Zustand des Controllers als Szenariodatei schreiben</translation>
    </message>
    <message>
        <source>Controller &amp;log</source>
        <translation>Controller-&amp;Protokoll</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Active configuration &amp;changed</source>
        <translation>Aktive Konfiguration &amp;geändert</translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation>&amp;Konfiguration</translation>
    </message>
    <message>
        <source>Send &quot;ActiveConfigurationChanged&quot; as the configuration module does</source>
        <translation>„ActiveConfigurationChanged“ senden, wie es das Konfigurationsmodul tut</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Über</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>The module plug-in could not be loaded</source>
        <translation>Das Modul-Plug-in konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Start the demo again with --plugin PATH to load another build, or see --help.</source>
        <translation>Die Demo mit --plugin PFAD neu starten, um einen anderen Build zu laden, oder siehe --help.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Module:</source>
        <translation>Modul:</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>not loaded</source>
        <translation>nicht geladen</translation>
    </message>
    <message>
        <source>Plug-in file:</source>
        <translation>Plug-in-Datei:</translation>
    </message>
    <message>
        <source>%1 (built in)</source>
        <translation>%1 (eingebaut)</translation>
    </message>
    <message>
        <source>Scenario:</source>
        <translation>Szenario:</translation>
    </message>
    <message>
        <source>%1 (problems: %2, see the log)</source>
        <translation>%1 (Probleme: %2, siehe Protokoll)</translation>
    </message>
    <message>
        <source>Controller software:</source>
        <translation>Controller-Software:</translation>
    </message>
    <message>
        <source>Tracking system:</source>
        <translation>Tracking-System:</translation>
    </message>
    <message>
        <source>%1, version %2</source>
        <translation>%1, Version %2</translation>
    </message>
    <message>
        <source>(no type)</source>
        <translation>(kein Typ)</translation>
    </message>
    <message>
        <source>Observer mode:</source>
        <translation>Beobachtermodus:</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>Open the module&apos;s dialogs from its menus. The controller log (View menu) shows every command and message the module exchanges with the simulated controller, failures marked red; its console takes scenario lines.</source>
        <translation>Die Dialoge des Moduls öffnen sich über seine Menüs. Das Controller-Protokoll (Menü Ansicht) zeigt jedes Kommando und jede Nachricht zwischen Modul und simuliertem Controller, Fehler rot markiert; seine Konsole nimmt Szenariozeilen an.</translation>
    </message>
    <message>
        <source>no module loaded</source>
        <translation>kein Modul geladen</translation>
    </message>
    <message>
        <source>About the Velora demo host</source>
        <translation>Über den Velora-Demo-Host</translation>
    </message>
    <message>
        <source>&lt;p&gt;A small host for the tracking settings module, connected to a simulated tracking controller.&lt;/p&gt;&lt;p&gt;Module: %1&lt;br&gt;Plug-in: %2&lt;br&gt;Qt %3&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ein kleiner Host für das Modul der Tracking-Einstellungen, verbunden mit einem simulierten Tracking-Controller.&lt;/p&gt;&lt;p&gt;Modul: %1&lt;br&gt;Plug-in: %2&lt;br&gt;Qt %3&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Cannot write the scenario to %1: %2</source>
        <translation>Das Szenario kann nicht nach %1 geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Save the controller log</source>
        <translation>Controller-Protokoll speichern</translation>
    </message>
    <message>
        <source>Text files (*.log *.txt)</source>
        <translation>Textdateien (*.log *.txt)</translation>
    </message>
    <message>
        <source>Save the controller&apos;s state</source>
        <translation>Zustand des Controllers speichern</translation>
    </message>
    <message>
        <source>Scenarios (*.scn)</source>
        <translation>Szenarien (*.scn)</translation>
    </message>
    <message>
        <source>configuration locked</source>
        <translation>Konfiguration gesperrt</translation>
    </message>
    <message>
        <source>The latest error report; click to see it in the controller log</source>
        <translation>Die letzte Fehlermeldung; ein Klick zeigt sie im Controller-Protokoll</translation>
    </message>
</context>
<context>
    <name>DialogRenderer</name>
    <message>
        <source>%1: cannot be written</source>
        <translation>%1: kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Controller log</source>
        <translation>Controller-Protokoll</translation>
    </message>
    <message>
        <source>text in any column</source>
        <translation>Text in einer beliebigen Spalte</translation>
    </message>
    <message>
        <source>everything</source>
        <translation>alles</translation>
    </message>
    <message>
        <source>calls</source>
        <translation>Aufrufe</translation>
    </message>
    <message>
        <source>messages</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>failures</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>a scenario line: config is_changeable = no, @fail status step_active, ...</source>
        <translation>eine Szenariozeile: config is_changeable = no, @fail status step_active, ...</translation>
    </message>
    <message>
        <source>Sa&amp;ve log...</source>
        <translation>Protokoll &amp;speichern...</translation>
    </message>
    <message>
        <source>Write the whole log to a text file</source>
        <translation>Das ganze Protokoll in eine Textdatei schreiben</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Forget every exchange logged so far</source>
        <translation>Alle bisher protokollierten Einträge vergessen</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>S&amp;uchen:</translation>
    </message>
    <message>
        <source>S&amp;how:</source>
        <translation>&amp;Zeigen:</translation>
    </message>
    <message>
        <source>&amp;Controller:</source>
        <translation>&amp;Controller:</translation>
    </message>
    <message>
        <source>%1 of %2 entries</source>
        <translation>%1 von %2 Einträgen</translation>
    </message>
    <message>
        <source>Hide &amp;polling</source>
        <translation>&amp;Abfragen ausblenden</translation>
    </message>
    <message>
        <source>Hide the reads the module repeats on a timer (status active, status step_active, status progress, target_status_tracked) while they succeed</source>
        <translation>Die Abfragen ausblenden, die das Modul im Takt wiederholt (status active, status step_active, status progress, target_status_tracked), solange sie gelingen</translation>
    </message>
    <message>
        <source>The simulated controller takes the line as if it stood in its scenario; @unfail * lifts every @fail. Up and Down recall earlier lines.</source>
        <translation>Der simulierte Controller übernimmt die Zeile, als stünde sie in seinem Szenario; @unfail * hebt jedes @fail auf. Pfeil hoch und runter holen frühere Zeilen zurück.</translation>
    </message>
</context>
<context>
    <name>ModuleLoader</name>
    <message>
        <source>The plug-in loaded, but its object (class %1) is not a ModuleInterface &quot;%2&quot;; it was probably built against another version of the host&apos;s interface header.</source>
        <translation>Das Plug-in wurde geladen, aber sein Objekt (Klasse %1) ist kein ModuleInterface „%2“; es wurde wohl gegen eine andere Version der Schnittstellen-Header des Hosts gebaut.</translation>
    </message>
    <message>
        <source>Could not load the module plug-in</source>
        <translation>Das Modul-Plug-in konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Reason: %1</source>
        <translation>Grund: %1</translation>
    </message>
    <message>
        <source>No plug-in metadata could be read from the file.</source>
        <translation>Aus der Datei ließen sich keine Plug-in-Metadaten lesen.</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;keine&gt;</translation>
    </message>
    <message>
        <source>  &lt;- differs</source>
        <translation>  &lt;- weicht ab</translation>
    </message>
    <message>
        <source>release</source>
        <translation>Release</translation>
    </message>
    <message>
        <source>debug</source>
        <translation>Debug</translation>
    </message>
    <message>
        <source>What the file&apos;s metadata says:</source>
        <translation>Was die Metadaten der Datei sagen:</translation>
    </message>
    <message>
        <source>interface id</source>
        <translation>Schnittstellen-ID</translation>
    </message>
    <message>
        <source>class name</source>
        <translation>Klassenname</translation>
    </message>
    <message>
        <source>built with Qt</source>
        <translation>gebaut mit Qt</translation>
    </message>
    <message>
        <source>%1.%2 or older</source>
        <translation>%1.%2 oder älter</translation>
    </message>
    <message>
        <source>build</source>
        <translation>Build</translation>
    </message>
    <message>
        <source>QT_DEBUG_PLUGINS is set: the Qt plug-in loader&apos;s trace is on standard error.</source>
        <translation>QT_DEBUG_PLUGINS ist gesetzt: die Ablaufverfolgung des Qt-Plug-in-Laders steht auf der Standardfehlerausgabe.</translation>
    </message>
    <message>
        <source>Rerun with QT_DEBUG_PLUGINS=1 to see the Qt plug-in loader&apos;s own trace.</source>
        <translation>Mit QT_DEBUG_PLUGINS=1 neu starten, um die Ablaufverfolgung des Qt-Plug-in-Laders zu sehen.</translation>
    </message>
</context>
<context>
    <name>SimulatorLogModel</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operation</translation>
    </message>
    <message>
        <source>Command or message</source>
        <translation>Kommando oder Nachricht</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Antwort</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Cannot write the log to %1: %2</source>
        <translation>Das Protokoll kann nicht nach %1 geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1 → %2: %3</source>
        <translation>%1 → %2: %3</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>StandInModules</name>
    <message>
        <source>body calibration</source>
        <translation>Körperkalibrierung</translation>
    </message>
    <message>
        <source>body adjustment</source>
        <translation>Körperjustierung</translation>
    </message>
    <message>
        <source>hybrid body calibration</source>
        <translation>Hybridkörper-Kalibrierung</translation>
    </message>
    <message>
        <source>%1 body %2 (%3)</source>
        <translation>%1 Körper %2 (%3)</translation>
    </message>
    <message>
        <source>Simulated %1 of %2.

The real module would take over here. Press OK to return to the body administration.</source>
        <translation>Simulierte %1 von %2.

Hier würde das echte Modul übernehmen. OK führt zurück zur Körperverwaltung.</translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (simuliert)</translation>
    </message>
</context>
</TS>
