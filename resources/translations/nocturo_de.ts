<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
    <context>
        <name>NocturoPreferencePanel</name>
        <message>
            <source>Nocturo Preferences</source>
            <translation>Nocturo-Einstellungen</translation>
        </message>
        <message>
            <source>Switches the effect on or off (Ctrl+E)</source>
            <translation>Schaltet den Effekt ein oder aus (Strg+E)</translation>
        </message>
        <message>
            <source>Effect</source>
            <translation>Effekt</translation>
        </message>
        <message>
            <source>Nocturo can stay at hand as an icon in the panel's tray.</source>
            <translation>Nocturo kann als Symbol im Systembereich des Panels zur Hand bleiben.</translation>
        </message>
        <message>
            <source>The icon then switches the effect and leads back to this window</source>
            <translation>Das Symbol schaltet dann den Effekt und führt zu diesem Fenster zurück</translation>
        </message>
        <message>
            <source>Stay in the tray</source>
            <translation>In den Systembereich</translation>
        </message>
        <message>
            <source>The page "Switching" has this choice, too</source>
            <translation>Auch auf der Seite „Ein- und Ausschalten“ zu wählen</translation>
        </message>
        <message>
            <source>Not now</source>
            <translation>Jetzt nicht</translation>
        </message>
        <message>
            <source>Looks and effects</source>
            <translation>Looks und Effekte</translation>
        </message>
        <message>
            <source>&amp;Invert</source>
            <translation>&amp;Invertieren</translation>
        </message>
        <message>
            <source>Swaps light and dark</source>
            <translation>Vertauscht Hell und Dunkel</translation>
        </message>
        <message>
            <source>&amp;Overexpose</source>
            <translation>Ü&amp;berbelichten</translation>
        </message>
        <message>
            <source>Makes light tones white, so that stripes and backgrounds in light gray vanish</source>
            <translation>Macht helle Töne weiß, sodass hellgraue Streifen und Hintergründe verschwinden</translation>
        </message>
        <message>
            <source>HDT&amp;V range</source>
            <translation>HDT&amp;V-Bereich</translation>
        </message>
        <message>
            <source>Fits the picture into the luminance range of a television, 16 to 235</source>
            <translation>Passt das Bild in den Helligkeitsbereich eines Fernsehers ein, 16 bis 235</translation>
        </message>
        <message>
            <source>&amp;Color filter</source>
            <translation>Farbfi&amp;lter</translation>
        </message>
        <message>
            <source>Tints the screen as colored glass would</source>
            <translation>Färbt den Bildschirm wie ein farbiges Glas</translation>
        </message>
        <message>
            <source>&amp;Temperature:</source>
            <translation>Te&amp;mperatur:</translation>
        </message>
        <message>
            <source>The color filter as warm or cool light, from candles to the sky; empty while it is another color</source>
            <translation>Der Farbfilter als warmes oder kühles Licht, von der Kerze bis zum Himmel; leer, solange er eine andere Farbe hat</translation>
        </message>
        <message>
            <source>H&amp;ue:</source>
            <translation>Farb&amp;ton:</translation>
        </message>
        <message>
            <source>The color that passes the filter</source>
            <translation>Die Farbe, die der Filter durchlässt</translation>
        </message>
        <message>
            <source>Vivi&amp;dness:</source>
            <translation>&amp;Sättigung:</translation>
        </message>
        <message>
            <source>How much of the other colors the filter takes away</source>
            <translation>Wie viel der Filter von den anderen Farben wegnimmt</translation>
        </message>
        <message>
            <source>Di&amp;m or lighten</source>
            <translation>&amp;Abdunkeln oder aufhellen</translation>
        </message>
        <message>
            <source>Moves every color toward black or toward white</source>
            <translation>Verschiebt alle Farben in Richtung Schwarz oder Weiß</translation>
        </message>
        <message>
            <source>Level</source>
            <translation>Stärke</translation>
        </message>
        <message>
            <source>Negative values make the screen darker, positive ones lighter</source>
            <translation>Negative Werte machen den Bildschirm dunkler, positive heller</translation>
        </message>
        <message>
            <source>A&amp;pply to:</source>
            <translation>A&amp;nwenden auf:</translation>
        </message>
        <message>
            <source>The screens that the effect is applied to</source>
            <translation>Die Bildschirme, auf die der Effekt angewendet wird</translation>
        </message>
        <message>
            <source>Sho&amp;w:</source>
            <translation>An&amp;zeigen:</translation>
        </message>
        <message>
            <source>The screen whose curves are shown</source>
            <translation>Der Bildschirm, dessen Kurven gezeigt werden</translation>
        </message>
        <message>
            <source>Cu&amp;rves</source>
            <translation>&amp;Kurven</translation>
        </message>
        <message>
            <source>Shows beside the picture what becomes of each color channel</source>
            <translation>Zeigt neben dem Bild, was aus jedem Farbkanal wird</translation>
        </message>
        <message>
            <source>Its loo&amp;k:</source>
            <translation>Ei&amp;gener Look:</translation>
        </message>
        <message>
            <source>What this screen shows in place of the effects of all, also when it comes back</source>
            <translation>Was dieser Bildschirm statt der Effekte aller zeigt, auch wenn er wiederkommt</translation>
        </message>
        <message>
            <source>Switching</source>
            <translation>Ein- und Ausschalten</translation>
        </message>
        <message>
            <source>Otherwise Nocturo starts as you left it</source>
            <translation>Sonst startet Nocturo so, wie Sie es verlassen haben</translation>
        </message>
        <message>
            <source>Switch on when Nocturo s&amp;tarts</source>
            <translation>Bei&amp;m Start von Nocturo einschalten</translation>
        </message>
        <message>
            <source>Nocturo is then there after every login</source>
            <translation>Nocturo ist dann nach jeder Anmeldung da</translation>
        </message>
        <message>
            <source>Start &amp;with the session</source>
            <translation>Mit der Si&amp;tzung starten</translation>
        </message>
        <message>
            <source>Switch on or off when Nocturo is started a&amp;gain</source>
            <translation>Bei erneutem Start von Nocturo &amp;umschalten</translation>
        </message>
        <message>
            <source>A click on its icon in the launcher then works as a switch</source>
            <translation>Ein Klick auf das Symbol im Starter wirkt dann wie ein Schalter</translation>
        </message>
        <message>
            <source>&amp;Reapply every six seconds</source>
            <translation>Alle sechs Sekunden erneut an&amp;wenden</translation>
        </message>
        <message>
            <source>Keeps the effect when games or other programs reset the colors</source>
            <translation>Erhält den Effekt, wenn Spiele oder andere Programme die Farben zurücksetzen</translation>
        </message>
        <message>
            <source>The screen saver then shows its own colors</source>
            <translation>Der Bildschirmschoner zeigt dann seine eigenen Farben</translation>
        </message>
        <message>
            <source>P&amp;ause while the screen saver runs</source>
            <translation>Während des Bildschirmschoners &amp;pausieren</translation>
        </message>
        <message>
            <source>Works in every program, when you let go of the key</source>
            <translation>Wirkt in jedem Programm, sobald Sie die Taste loslassen</translation>
        </message>
        <message>
            <source>Switch with the hot &amp;key</source>
            <translation>Mit dem Tasten&amp;kürzel umschalten</translation>
        </message>
        <message>
            <source>Leaves Nocturo without a hot key</source>
            <translation>Lässt Nocturo ohne Tastenkürzel</translation>
        </message>
        <message>
            <source>Clear the hot key</source>
            <translation>Tastenkürzel löschen</translation>
        </message>
        <message>
            <source>Fa&amp;de:</source>
            <translation>Überb&amp;lenden:</translation>
        </message>
        <message>
            <source>How long the colors take to change when the effect is switched</source>
            <translation>Wie lange die Farben brauchen, wenn der Effekt geschaltet wird</translation>
        </message>
        <message>
            <source>Show Nocturo:</source>
            <translation>Nocturo anzeigen:</translation>
        </message>
        <message>
            <source>Nocturo then has no icon of its own in the panel</source>
            <translation>Nocturo hat dann kein eigenes Symbol in der Leiste</translation>
        </message>
        <message>
            <source>As an ordinary application, in the task &amp;bar and launcher</source>
            <translation>Als &amp;gewöhnliche Anwendung in Taskleiste und Starter</translation>
        </message>
        <message>
            <source>A click on the icon shows Nocturo's menu, a middle click switches the effect</source>
            <translation>Ein Klick auf das Symbol zeigt das Menü von Nocturo, ein Mittelklick schaltet den Effekt um</translation>
        </message>
        <message>
            <source>As an icon in the panel's tra&amp;y</source>
            <translation>Als S&amp;ymbol im Benachrichtigungsfeld der Leiste</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Zeitplan</translation>
        </message>
        <message>
            <source>Rules</source>
            <translation>Regeln</translation>
        </message>
        <message>
            <source>Ope&amp;n...</source>
            <translation>Ö&amp;ffnen …</translation>
        </message>
        <message>
            <source>Take the effects from a document</source>
            <translation>Die Effekte aus einem Dokument übernehmen</translation>
        </message>
        <message>
            <source>&amp;Save...</source>
            <translation>Spei&amp;chern …</translation>
        </message>
        <message>
            <source>Save the effects as a document</source>
            <translation>Die Effekte als Dokument speichern</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Schließen</translation>
        </message>
    </context>
    <context>
        <name>Localizable</name>
        <message>
            <source>No effect has been chosen.</source>
            <translation>Es wurde kein Effekt ausgewählt.</translation>
        </message>
        <message>
            <source>You should check at least one box in the preference panel relating to the screen effect, or Nocturo will have no visible effect on your screen.</source>
            <translation>Wählen Sie in den Einstellungen mindestens einen Bildschirmeffekt aus, sonst ändert Nocturo sichtbar nichts an Ihrem Bildschirm.</translation>
        </message>
        <message>
            <source>Open preferences...</source>
            <translation>Einstellungen öffnen …</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Preferences...</source>
            <translation>Einstellungen …</translation>
        </message>
        <message>
            <source>About Nocturo</source>
            <translation>Über Nocturo</translation>
        </message>
        <message>
            <source>Quit Nocturo</source>
            <translation>Nocturo beenden</translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>Pause</translation>
        </message>
        <message>
            <source>30 minutes</source>
            <translation>30 Minuten</translation>
        </message>
        <message>
            <source>1 hour</source>
            <translation>1 Stunde</translation>
        </message>
        <message>
            <source>Until tomorrow</source>
            <translation>Bis morgen</translation>
        </message>
        <message>
            <source>&amp;Deactivate Effect</source>
            <translation>Effekt &amp;ausschalten</translation>
        </message>
        <message>
            <source>&amp;Activate Effect</source>
            <translation>Effekt &amp;einschalten</translation>
        </message>
        <message>
            <source>Deactivate Effect</source>
            <translation>Effekt ausschalten</translation>
        </message>
        <message>
            <source>Activate Effect</source>
            <translation>Effekt einschalten</translation>
        </message>
        <message>
            <source>Open Recent</source>
            <translation>Zuletzt geöffnet</translation>
        </message>
        <message>
            <source>Invert</source>
            <translation>Invertieren</translation>
        </message>
        <message>
            <source>Overexpose</source>
            <translation>Überbelichten</translation>
        </message>
        <message>
            <source>Dim or lighten</source>
            <translation>Abdunkeln oder aufhellen</translation>
        </message>
        <message>
            <source>Color filter</source>
            <translation>Farbfilter</translation>
        </message>
        <message>
            <source>HDTV range</source>
            <translation>HDTV-Bereich</translation>
        </message>
        <message>
            <source>Effects</source>
            <translation>Effekte</translation>
        </message>
        <message>
            <source>and %d more</source>
            <translation>und %d weitere</translation>
        </message>
        <message>
            <source>Looks</source>
            <translation>Looks</translation>
        </message>
        <message>
            <source>All Screens</source>
            <translation>Alle Bildschirme</translation>
        </message>
        <message>
            <source>Screen %d</source>
            <translation>Bildschirm %d</translation>
        </message>
        <message>
            <source>, %d</source>
            <translation>, %d</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Keine</translation>
        </message>
        <message>
            <source>%@, not connected</source>
            <translation>%@, nicht angeschlossen</translation>
        </message>
        <message>
            <source>Lighten %@</source>
            <translation>Aufhellen %@</translation>
        </message>
        <message>
            <source>Dim %@</source>
            <translation>Abdunkeln %@</translation>
        </message>
        <message>
            <source>Color filter %1$@° %2$@ %%</source>
            <translation>Farbfilter %1$@° %2$@ %%</translation>
        </message>
        <message>
            <source>all screens</source>
            <translation>allen Bildschirmen</translation>
        </message>
        <message>
            <source>screens that are not connected</source>
            <translation>nicht angeschlossenen Bildschirmen</translation>
        </message>
        <message>
            <source>On, but no effect is chosen</source>
            <translation>Ein, aber es ist kein Effekt gewählt</translation>
        </message>
        <message>
            <source>On: %1$@ on %2$@</source>
            <translation>Ein: %1$@ auf %2$@</translation>
        </message>
        <message>
            <source>%1$@, but not on %2$@</source>
            <translation>%1$@, aber nicht auf %2$@</translation>
        </message>
        <message>
            <source>Paused while %@ runs</source>
            <translation>Pause, solange %@ läuft</translation>
        </message>
        <message>
            <source>Paused until you go on</source>
            <translation>Pause, bis Sie fortfahren</translation>
        </message>
        <message>
            <source>Paused until %@</source>
            <translation>Pause bis %@</translation>
        </message>
        <message>
            <source>%@; by hand</source>
            <translation>%@; von Hand</translation>
        </message>
        <message>
            <source>%1$@; by hand until %2$@ or a rule holds</source>
            <translation>%1$@; von Hand bis %2$@ oder bis eine Regel gilt</translation>
        </message>
        <message>
            <source>%1$@; by hand until %2$@</source>
            <translation>%1$@; von Hand bis %2$@</translation>
        </message>
        <message>
            <source>%1$@; by the rule "%2$@"</source>
            <translation>%1$@; nach der Regel „%2$@“</translation>
        </message>
        <message>
            <source>%@; by the schedule</source>
            <translation>%@; nach Zeitplan</translation>
        </message>
        <message>
            <source>%1$@; by the schedule until %2$@</source>
            <translation>%1$@; nach Zeitplan bis %2$@</translation>
        </message>
        <message>
            <source>%@, its own look</source>
            <translation>%@, ein eigener Look</translation>
        </message>
        <message>
            <source>Off</source>
            <translation>Aus</translation>
        </message>
        <message>
            <source>On</source>
            <translation>An</translation>
        </message>
        <message>
            <source>%1$@. %2$@: %3$@</source>
            <translation>%1$@. %2$@: %3$@</translation>
        </message>
        <message>
            <source>Off. Choose effects, then switch on</source>
            <translation>Aus. Wählen Sie Effekte und schalten Sie dann ein</translation>
        </message>
        <message>
            <source>Off. When on: %@</source>
            <translation>Aus. Beim Einschalten: %@</translation>
        </message>
        <message>
            <source>%@ %%</source>
            <translation>%@ %%</translation>
        </message>
        <message>
            <source>Paused: screen saver</source>
            <translation>Pause: Bildschirmschoner</translation>
        </message>
        <message>
            <source>Nobody knows when that is: "%@".</source>
            <translation>Niemand weiß, wann das ist: „%@“.</translation>
        </message>
        <message>
            <source>There is no look "%@".</source>
            <translation>Einen Look „%@“ gibt es nicht.</translation>
        </message>
        <message>
            <source>The time zone has no place for the sun; set one with: nocturoctl set SchedulePlace "52.5 13.4"</source>
            <translation>Die Zeitzone hat keinen Ort für die Sonne; setzen Sie einen mit: nocturoctl set SchedulePlace "52.5 13.4"</translation>
        </message>
        <message>
            <source>"%@" is no length of a pause, such as 30m, 2h or 1h30m, up to 366d.</source>
            <translation>„%@“ ist keine Länge einer Pause wie 30m, 2h oder 1h30m, bis zu 366d.</translation>
        </message>
        <message>
            <source>"%@" is no time to pause for, such as 30m, 2h, until 18:00 or until sunset.</source>
            <translation>„%@“ ist keine Zeit für eine Pause wie 30m, 2h, until 18:00 oder until sunset.</translation>
        </message>
        <message>
            <source>Nobody could read the screens under the look "%@"; it means off until it is changed.</source>
            <translation>Mit dem Look „%@“ konnte niemand die Bildschirme lesen; er bedeutet Aus, bis er geändert wird.</translation>
        </message>
        <message>
            <source>This desktop does not tell which window is in front.</source>
            <translation>Diese Arbeitsumgebung sagt nicht, welches Fenster vorn ist.</translation>
        </message>
        <message>
            <source>There is no look "%@"; the name of a program with spaces stands between quotation marks.</source>
            <translation>Einen Look „%@“ gibt es nicht; der Name eines Programms mit Leerzeichen steht in Anführungszeichen.</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ rules at most.</source>
            <translation>„%1$@“ nimmt eine Liste von höchstens %2$@ Regeln.</translation>
        </message>
        <message>
            <source>There is no rule %@.</source>
            <translation>Es gibt keine Regel %@.</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ points at most.</source>
            <translation>„%1$@“ nimmt eine Liste von höchstens %2$@ Punkten.</translation>
        </message>
        <message>
            <source>The schedule has no point %@.</source>
            <translation>Der Zeitplan hat keinen Punkt %@.</translation>
        </message>
        <message>
            <source>There is no setting "%@".</source>
            <translation>Eine Einstellung „%@“ gibt es nicht.</translation>
        </message>
        <message>
            <source>"%@" is no absolute path.</source>
            <translation>„%@“ ist kein absoluter Pfad.</translation>
        </message>
        <message>
            <source>No setting takes a value of this type.</source>
            <translation>Keine Einstellung nimmt einen Wert dieser Art.</translation>
        </message>
        <message>
            <source>The display server keeps %@ to itself, so it cannot be the hot key.</source>
            <translation>Der Anzeigeserver behält %@ für sich, daher kann es nicht das Tastenkürzel sein.</translation>
        </message>
        <message>
            <source>"%@" is not an effect document.</source>
            <translation>„%@“ ist kein Effektdokument.</translation>
        </message>
        <message>
            <source>Could not save settings at "%@": %@.</source>
            <translation>Die Einstellungen konnten nicht in „%@“ gespeichert werden: %@.</translation>
        </message>
        <message>
            <source>A temperature is from 1000 to 25000 K.</source>
            <translation>Eine Farbtemperatur reicht von 1000 bis 25000 K.</translation>
        </message>
        <message>
            <source>The color filter has a hue and a vividness that are no temperature.</source>
            <translation>Farbton und Sättigung des Farbfilters ergeben keine Farbtemperatur.</translation>
        </message>
        <message>
            <source>"%@" is no setting that goes in steps.</source>
            <translation>„%@“ ist keine Einstellung, die in Schritten geht.</translation>
        </message>
        <message>
            <source>One display has to stay, as a choice of none means all; nocturoctl off switches the effect off.</source>
            <translation>Ein Bildschirm muss bleiben, denn keiner heißt alle; nocturoctl off schaltet den Effekt aus.</translation>
        </message>
        <message>
            <source>There is no display with the identifier %d.</source>
            <translation>Einen Bildschirm mit der Kennung %d gibt es nicht.</translation>
        </message>
        <message>
            <source>These are not effect documents: %@</source>
            <translation>Dies sind keine Effektdokumente: %@</translation>
        </message>
        <message>
            <source>Nocturo waits for the answer to the question that it shows.</source>
            <translation>Nocturo wartet auf die Antwort auf die Frage, die es zeigt.</translation>
        </message>
        <message>
            <source>No more than %d documents can be opened at once.</source>
            <translation>Mehr als %d Dokumente können nicht auf einmal geöffnet werden.</translation>
        </message>
        <message>
            <source>Nocturo answered something that this version does not understand.</source>
            <translation>Nocturo hat etwas geantwortet, was diese Version nicht versteht.</translation>
        </message>
        <message>
            <source>Nocturo is not running.</source>
            <translation>Nocturo läuft nicht.</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>Pausiert</translation>
        </message>
        <message>
            <source>Nocturo is not running; start it with: nocturo &amp;</source>
            <translation>Nocturo läuft nicht; starten Sie es mit: nocturo &amp;</translation>
        </message>
        <message>
            <source>The session bus failed: %@.</source>
            <translation>Der Sitzungsbus hat versagt: %@.</translation>
        </message>
        <message>
            <source>There is no session bus over which Nocturo could be reached; start it inside a desktop session with: nocturo &amp;</source>
            <translation>Es gibt keinen Sitzungsbus, über den Nocturo zu erreichen wäre; starten Sie es innerhalb einer Desktopsitzung mit: nocturo &amp;</translation>
        </message>
        <message>
            <source>The Nocturo that runs does not answer.</source>
            <translation>Das laufende Nocturo antwortet nicht.</translation>
        </message>
        <message>
            <source>Nocturo did not do it: %@</source>
            <translation>Nocturo hat es nicht ausgeführt: %@</translation>
        </message>
        <message>
            <source>There is no setting "%@"; nocturoctl status --all lists them.</source>
            <translation>Eine Einstellung „%@“ gibt es nicht; nocturoctl status --all nennt alle.</translation>
        </message>
        <message>
            <source>No hot key is chosen.</source>
            <translation>Es ist kein Tastenkürzel gewählt.</translation>
        </message>
        <message>
            <source>%@  (not enabled; nocturoctl hotkey enable)</source>
            <translation>%@  (nicht aktiviert; nocturoctl hotkey enable)</translation>
        </message>
        <message>
            <source>%@  (not in force: another program holds it, or the desktop offers no hot keys)</source>
            <translation>%@  (nicht wirksam: Ein anderes Programm belegt es, oder der Desktop bietet keine Tastenkürzel)</translation>
        </message>
        <message>
            <source>Name a file.</source>
            <translation>Nennen Sie eine Datei.</translation>
        </message>
        <message>
            <source>There is no such file: %@</source>
            <translation>Diese Datei gibt es nicht: %@</translation>
        </message>
        <message>
            <source>No display is online.</source>
            <translation>Kein Bildschirm ist angeschlossen.</translation>
        </message>
        <message>
            <source>The file "%@" cannot be written.</source>
            <translation>Die Datei „%@“ kann nicht geschrieben werden.</translation>
        </message>
        <message>
            <source>Switch the effect on</source>
            <translation>Den Effekt einschalten</translation>
        </message>
        <message>
            <source>--fade has it come little by little, in up to 5 seconds.</source>
            <translation>Mit --fade kommt er nach und nach, in bis zu 5 Sekunden.</translation>
        </message>
        <message>
            <source>Switch the effect off</source>
            <translation>Den Effekt ausschalten</translation>
        </message>
        <message>
            <source>Every display gets its own colors back.</source>
            <translation>Jeder Bildschirm erhält seine eigenen Farben zurück.</translation>
        </message>
        <message>
            <source>Switch the effect on or off</source>
            <translation>Den Effekt ein- oder ausschalten</translation>
        </message>
        <message>
            <source>Bind this to a key. --fade has it come and go little by little, in up to 5 seconds.</source>
            <translation>Legen Sie dies auf eine Taste. Mit --fade kommt und geht er allmählich, in bis zu 5 Sekunden.</translation>
        </message>
        <message>
            <source>Switch the effect off for a time</source>
            <translation>Den Effekt für eine Zeit ausschalten</translation>
        </message>
        <message>
            <source>For so long, such as 30m, 2h or 1h30m; until 18:00, sunrise, tomorrow,
which is six in the morning, or next, the schedule's next point; while a command
runs; or until you switch the effect or say cancel.</source>
            <translation>So lange, etwa 30m, 2h oder 1h30m; until 18:00, sunrise (Sonnenaufgang), tomorrow,
das ist sechs Uhr morgens, oder next, der nächste Punkt des Zeitplans; while, solange ein
Befehl läuft; sonst bis Sie den Effekt schalten oder cancel sagen.</translation>
        </message>
        <message>
            <source>Show or change what happens by the clock and the sun</source>
            <translation>Zeigen oder ändern, was nach Uhr und Sonne geschieht</translation>
        </message>
        <message>
            <source>A POINT is a time and a look or off: 07:00 off, sunset-00:30 Warm evening. Instead of a
time of day it may have dawn, sunrise, sunset or dusk. list and next take --json.</source>
            <translation>POINT ist eine Zeit und ein Look oder off: 07:00 off, sunset-00:30 Warm evening. Statt einer
Uhrzeit geht dawn, sunrise, sunset oder dusk. list und next nehmen --json.</translation>
        </message>
        <message>
            <source>Show or change what happens while programs are in front</source>
            <translation>Zeigen oder ändern, was geschieht, während Programme vorn sind</translation>
        </message>
        <message>
            <source>A RULE is fullscreen, program NAME or game, and a look or off: fullscreen off,
program mpv Warm evening. The first one that holds for a display counts. list takes
--json.</source>
            <translation>Eine RULE ist fullscreen, program NAME oder game, und ein Look oder off: fullscreen off,
program mpv Warm evening. Die erste, die für einen Bildschirm gilt, zählt. list nimmt
--json.</translation>
        </message>
        <message>
            <source>Show the state of everything</source>
            <translation>Den Zustand von allem zeigen</translation>
        </message>
        <message>
            <source>With --all, every setting as well; with --json, one object for programs; with --bar,
a line for a bar: waybar, polybar or i3status-rust. --follow prints another line at
each change, whether Nocturo runs or comes later.</source>
            <translation>Mit --all auch jede Einstellung; mit --json ein Objekt für Programme; mit --bar eine
Zeile für eine Leiste: waybar, polybar oder i3status-rust. --follow gibt bei jeder
Änderung eine weitere aus, ob Nocturo läuft oder später kommt.</translation>
        </message>
        <message>
            <source>List or choose the effects</source>
            <translation>Die Effekte auflisten oder wählen</translation>
        </message>
        <message>
            <source>NAME is invert, overexposure, dim, color-filter or hdtv-luminance, or a class
name. add, remove and toggle change the selection, only replaces it.</source>
            <translation>NAME ist invert, overexposure, dim, color-filter oder hdtv-luminance oder der Name
einer Klasse. add, remove und toggle ändern die Auswahl, only ersetzt sie.</translation>
        </message>
        <message>
            <source>Show the dim level, dim or lighten</source>
            <translation>Helligkeit zeigen, abdunkeln oder aufhellen</translation>
        </message>
        <message>
            <source>N% makes the picture darker by so much than it is by itself. +N% and -N% are steps: they
make it lighter and darker than it is now, and print what it is then. =LEVEL% is what
the window shows, from =-100% (black) over =0% to =100% (white).</source>
            <translation>N% macht das Bild um so viel dunkler, als es von selbst ist. +N% und -N% sind Schritte:
sie machen es heller und dunkler als jetzt und geben aus, wie es dann ist. =STUFE% ist,
was das Fenster zeigt, von =-100% (schwarz) über =0% bis =100% (weiß).</translation>
        </message>
        <message>
            <source>Show or choose hue and vividness of the color filter</source>
            <translation>Farbton und Sättigung des Farbfilters zeigen oder wählen</translation>
        </message>
        <message>
            <source>HUE is in degrees: 0 red, 25 orange, 120 green, 240 blue. +N and -N go so far from
what is there.</source>
            <translation>HUE ist in Grad: 0 rot, 25 orange, 120 grün, 240 blau. +N und -N gehen von dem aus,
was da ist.</translation>
        </message>
        <message>
            <source>Show or choose a color temperature</source>
            <translation>Eine Farbtemperatur zeigen oder wählen</translation>
        </message>
        <message>
            <source>From 1000 (candle) over 6500 (neutral) to 25000 (blue sky), as hue and vividness of the
color filter, which is chosen. +N and -N go so far from the one in force.</source>
            <translation>Von 1000 (Kerze) über 6500 (neutral) bis 25000 (blauer Himmel), als Farbton und
Sättigung des Farbfilters, der damit gewählt ist. +N und -N gehen von der geltenden aus.</translation>
        </message>
        <message>
            <source>Show, choose or keep a combination of effects</source>
            <translation>Eine Verbindung von Effekten zeigen, wählen oder behalten</translation>
        </message>
        <message>
            <source>list [--json]      all of them, those that come with Nocturo and your own
next, previous     the one after or before the one in force
back               what the last look replaced
save NAME          keep the effects as a look of your own
rename NAME NEW, delete NAME, move NAME PLACE</source>
            <translation>list [--json]      alle, die von Nocturo und die eigenen
next, previous     der nach oder vor dem geltenden
back               was der letzte Look ersetzt hat
save NAME          die Effekte als eigenen Look behalten
rename NAME NEW, delete NAME, move NAME PLACE</translation>
        </message>
        <message>
            <source>Show a setting</source>
            <translation>Eine Einstellung zeigen</translation>
        </message>
        <message>
            <source>nocturoctl status --all lists the keys.</source>
            <translation>nocturoctl status --all nennt die Schlüssel.</translation>
        </message>
        <message>
            <source>Change a setting</source>
            <translation>Eine Einstellung ändern</translation>
        </message>
        <message>
            <source>VALUE is true or false, a number, or a list with commas, as the setting takes it.
For example: nocturoctl set NDDimEffectLevel -30%. Numbers beyond the range and displays
that are not there are refused without --force.</source>
            <translation>VALUE ist true oder false, eine Zahl oder eine Liste mit Kommas, je nach Einstellung.
Zum Beispiel: nocturoctl set NDDimEffectLevel -30%. Zahlen außerhalb des Bereichs und
Bildschirme, die es nicht gibt, werden ohne --force abgelehnt.</translation>
        </message>
        <message>
            <source>Change a number by so much</source>
            <translation>Eine Zahl um so viel ändern</translation>
        </message>
        <message>
            <source>As far as its range goes. For example: nocturoctl step NDDimEffectLevel -5%</source>
            <translation>So weit ihr Bereich reicht. Zum Beispiel: nocturoctl step NDDimEffectLevel -5%</translation>
        </message>
        <message>
            <source>Give a setting its default value again</source>
            <translation>Eine Einstellung auf ihre Vorgabe zurücksetzen</translation>
        </message>
        <message>
            <source>List or choose the affected displays</source>
            <translation>Die betroffenen Bildschirme auflisten oder wählen</translation>
        </message>
        <message>
            <source>DISPLAY is its number in the list, its name or its identifier. only chooses these
alone; toggle puts each into the set of affected displays or takes it out. An
empty set means all displays, which is also what all chooses. look gives a display a
look of its own; - takes it away.</source>
            <translation>DISPLAY ist die Nummer in der Liste, der Name oder die Kennung. only wählt nur diese;
toggle nimmt jeden in die Menge der betroffenen auf oder aus ihr heraus. Eine leere
Menge heißt alle Bildschirme; das wählt auch all. look gibt
einem Bildschirm einen eigenen Look, - nimmt ihn wieder weg.</translation>
        </message>
        <message>
            <source>Show or choose the global hot key</source>
            <translation>Das globale Tastenkürzel zeigen oder wählen</translation>
        </message>
        <message>
            <source>KEYS is one key and any of ctrl, alt (or option), shift and super (or command),
such as 'ctrl+super+F5' or 'alt+shift+k'. The hot key toggles the effect while it
is enabled. Keys are what they type, and f1 to f20, left, right, up, down, home,
end, pageup, pagedown, insert, delete, backspace, tab, space, return, escape,
menu, volumeup, volumedown, mute, eisu, kana, keypad0 to keypad9, keypadplus,
keypadminus, keypadmultiply, keypaddivide, keypaddecimal, keypadcomma,
keypadequals, keypadenter and keypadclear.</source>
            <translation>KEYS ist eine Taste mit beliebigen von ctrl, alt (oder option), shift und super (oder
command), etwa 'ctrl+super+F5' oder 'alt+shift+k'. Das Tastenkürzel schaltet den Effekt um,
solange es aktiviert ist. Tasten heißen nach dem, was sie schreiben, und f1 bis f20, left, right, up, down, home,
end, pageup, pagedown, insert, delete, backspace, tab, space, return, escape,
menu, volumeup, volumedown, mute, eisu, kana, keypad0 bis keypad9, keypadplus,
keypadminus, keypadmultiply, keypaddivide, keypaddecimal, keypadcomma,
keypadequals, keypadenter und keypadclear.</translation>
        </message>
        <message>
            <source>Take the effects from a document</source>
            <translation>Die Effekte aus einem Dokument übernehmen</translation>
        </message>
        <message>
            <source>Save the effects as a document</source>
            <translation>Die Effekte als Dokument speichern</translation>
        </message>
        <message>
            <source>Draw what the effects do</source>
            <translation>Zeichnen, was die Effekte bewirken</translation>
        </message>
        <message>
            <source>The curves of a display, of the main one unless told otherwise, and a scene seen
through them, as a PNG picture. N is its number, name or identifier.</source>
            <translation>Die Kurven eines Bildschirms, ohne Angabe des Hauptbildschirms, und eine Szene durch
sie gesehen, als PNG-Bild. N ist seine Nummer, sein Name oder seine Kennung.</translation>
        </message>
        <message>
            <source>Show the preference window</source>
            <translation>Das Einstellungsfenster zeigen</translation>
        </message>
        <message>
            <source>Show the about box</source>
            <translation>Das Fenster „Über Nocturo“ zeigen</translation>
        </message>
        <message>
            <source>Print every change as it happens</source>
            <translation>Jede Änderung ausgeben, sobald sie geschieht</translation>
        </message>
        <message>
            <source>One JSON object a line: first the whole state, then what changed. Ends when Nocturo
does.</source>
            <translation>Ein JSON-Objekt pro Zeile: zuerst der ganze Zustand, dann was sich ändert. Endet mit
Nocturo.</translation>
        </message>
        <message>
            <source>Give every display its own colors back</source>
            <translation>Jedem Bildschirm seine eigenen Farben zurückgeben</translation>
        </message>
        <message>
            <source>Whether Nocturo runs, answers or was killed, and without a session bus as well. Where
nothing is known of a display's own colors it gets plain ones.</source>
            <translation>Ob Nocturo läuft, antwortet oder abgeschossen wurde, und auch ohne Sitzungsbus. Ist
von den eigenen Farben eines Bildschirms nichts bekannt, erhält er neutrale.</translation>
        </message>
        <message>
            <source>Give the displays back and end Nocturo</source>
            <translation>Die Bildschirme zurückgeben und Nocturo beenden</translation>
        </message>
        <message>
            <source>%@  (the color filter is not chosen)</source>
            <translation>%@  (der Farbfilter ist nicht gewählt)</translation>
        </message>
        <message>
            <source>"%1$@" takes a number from %2$@ to %3$@.</source>
            <translation>„%1$@“ nimmt eine Zahl von %2$@ bis %3$@.</translation>
        </message>
        <message>
            <source>%@  (dim is not chosen)</source>
            <translation>%@  (Abdunkeln ist nicht gewählt)</translation>
        </message>
        <message>
            <source>Nocturo has ended.</source>
            <translation>Nocturo wurde beendet.</translation>
        </message>
        <message>
            <source>nocturoctl %@ --help tells more.</source>
            <translation>nocturoctl %@ --help sagt mehr.</translation>
        </message>
        <message>
            <source>Usage: %@</source>
            <translation>Aufruf: %@</translation>
        </message>
        <message>
            <source>Drives the Nocturo that runs in this session.</source>
            <translation>Steuert das Nocturo, das in dieser Sitzung läuft.</translation>
        </message>
        <message>
            <source>With --keep, colors that leave every screen hard to read stay. Without it they go back
after ten seconds, unless somebody keeps them.</source>
            <translation>Mit --keep bleiben Farben, mit denen jeder Bildschirm schwer zu lesen ist. Ohne
--keep gehen sie nach zehn Sekunden zurück, wenn niemand sie behält.</translation>
        </message>
        <message>
            <source>Exit status: 0 done, 1 failed, 2 not understood, 3 Nocturo is not running.</source>
            <translation>Rückgabewert: 0 erledigt, 1 fehlgeschlagen, 2 nicht verstanden, 3 Nocturo läuft nicht.</translation>
        </message>
        <message>
            <source>Say what to do; nocturoctl --help lists the verbs.</source>
            <translation>Sagen Sie, was zu tun ist; nocturoctl --help nennt die Verben.</translation>
        </message>
        <message>
            <source>There is no verb "%@"; nocturoctl --help lists them.</source>
            <translation>Ein Verb „%@“ gibt es nicht; nocturoctl --help nennt alle.</translation>
        </message>
        <message>
            <source>The answer cannot be written: %@.</source>
            <translation>Die Antwort lässt sich nicht schreiben: %@.</translation>
        </message>
        <message>
            <source>"%1$@" cannot be started: %2$@.</source>
            <translation>„%1$@“ kann nicht gestartet werden: %2$@.</translation>
        </message>
        <message>
            <source>no ramp, or another program has it</source>
            <translation>keine Rampe, oder ein anderes Programm hat sie</translation>
        </message>
        <message>
            <source>cannot be given a color profile</source>
            <translation>nimmt kein Farbprofil an</translation>
        </message>
        <message>
            <source>in HDR mode</source>
            <translation>im HDR-Modus</translation>
        </message>
        <message>
            <source>refused by the desktop</source>
            <translation>von der Arbeitsumgebung abgelehnt</translation>
        </message>
        <message>
            <source>yes</source>
            <translation>ja</translation>
        </message>
        <message>
            <source>no</source>
            <translation>nein</translation>
        </message>
        <message>
            <source>(none)</source>
            <translation>(keine)</translation>
        </message>
        <message>
            <source>%@ (not enabled)</source>
            <translation>%@ (nicht aktiviert)</translation>
        </message>
        <message>
            <source>%@ (not in force)</source>
            <translation>%@ (nicht wirksam)</translation>
        </message>
        <message>
            <source>Another program</source>
            <translation>Ein anderes Programm</translation>
        </message>
        <message>
            <source>%@ changes the colors too: found once since Nocturo was started.</source>
            <translation>%@ ändert die Farben ebenfalls: einmal bemerkt, seit Nocturo gestartet wurde.</translation>
        </message>
        <message>
            <source>%@ changes the colors too: found %d times since Nocturo was started.</source>
            <translation>%@ ändert die Farben ebenfalls: %d-mal bemerkt, seit Nocturo gestartet wurde.</translation>
        </message>
        <message>
            <source>look</source>
            <translation>Look</translation>
        </message>
        <message>
            <source>dim level</source>
            <translation>Abdunkeln, Stärke</translation>
        </message>
        <message>
            <source>color filter hue</source>
            <translation>Farbfilter, Farbton</translation>
        </message>
        <message>
            <source>color filter vividness</source>
            <translation>Farbfilter, Sättigung</translation>
        </message>
        <message>
            <source>hot key</source>
            <translation>Tastenkürzel</translation>
        </message>
        <message>
            <source>display services</source>
            <translation>Bildschirme kommen von</translation>
        </message>
        <message>
            <source>Displays</source>
            <translation>Bildschirme</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>Einstellungen</translation>
        </message>
        <message>
            <source>no.</source>
            <translation>Nr.</translation>
        </message>
        <message>
            <source>name</source>
            <translation>Name</translation>
        </message>
        <message>
            <source>identifier</source>
            <translation>Kennung</translation>
        </message>
        <message>
            <source>ramp</source>
            <translation>Rampe</translation>
        </message>
        <message>
            <source>applied</source>
            <translation>angewendet</translation>
        </message>
        <message>
            <source>monitor</source>
            <translation>Monitor</translation>
        </message>
        <message>
            <source>none</source>
            <translation>keine</translation>
        </message>
        <message>
            <source>main</source>
            <translation>Hauptbildschirm</translation>
        </message>
        <message>
            <source>not connected</source>
            <translation>nicht angeschlossen</translation>
        </message>
        <message>
            <source>own</source>
            <translation>eigener</translation>
        </message>
        <message>
            <source>Nocturo has switched its effect off and given the displays back.</source>
            <translation>Nocturo hat seinen Effekt ausgeschaltet und die Bildschirme zurückgegeben.</translation>
        </message>
        <message>
            <source>The displays have been given back, but a Nocturo that does not answer still runs and may change them again.</source>
            <translation>Die Bildschirme wurden zurückgegeben, aber ein Nocturo, das nicht antwortet, läuft noch und kann sie wieder verändern.</translation>
        </message>
        <message>
            <source>The displays have their own colors back, as they were before Nocturo changed them.</source>
            <translation>Die Bildschirme haben ihre eigenen Farben zurück, wie sie waren, bevor Nocturo sie änderte.</translation>
        </message>
        <message>
            <source>Nocturo has left no display changed, so nothing was done.</source>
            <translation>Nocturo hat keinen Bildschirm verändert zurückgelassen, also wurde nichts getan.</translation>
        </message>
        <message>
            <source>The displays have plain colors now, or those of their color profiles.</source>
            <translation>Die Bildschirme haben jetzt neutrale Farben oder die ihrer Farbprofile.</translation>
        </message>
        <message>
            <source>The desktop does not take the color profiles of the displays back; choose them in its settings.</source>
            <translation>Die Arbeitsumgebung nimmt die Farbprofile der Bildschirme nicht zurück; wählen Sie sie in ihren Einstellungen.</translation>
        </message>
        <message>
            <source>%@ does not tell Nocturo of its displays.</source>
            <translation>%@ sagt Nocturo nichts über seine Bildschirme.</translation>
        </message>
        <message>
            <source>There is no X server whose displays could be given back, because DISPLAY is not set.</source>
            <translation>Es gibt keinen X-Server, dessen Bildschirme zurückgegeben werden könnten, denn DISPLAY ist nicht gesetzt.</translation>
        </message>
        <message>
            <source>The X server %@ does not answer.</source>
            <translation>Der X-Server %@ antwortet nicht.</translation>
        </message>
        <message>
            <source>The compositor %@ does not answer.</source>
            <translation>Der Compositor %@ antwortet nicht.</translation>
        </message>
        <message>
            <source>%@ is in front</source>
            <translation>%@ ist vorn</translation>
        </message>
        <message>
            <source>a game is running</source>
            <translation>ein Spiel läuft</translation>
        </message>
        <message>
            <source>a window fills %@</source>
            <translation>ein Fenster füllt %@</translation>
        </message>
        <message>
            <source>The rules are not in use; nocturoctl rules on changes that.</source>
            <translation>Die Regeln sind nicht in Gebrauch; nocturoctl rules on ändert das.</translation>
        </message>
        <message>
            <source>The schedule is not in use; nocturoctl schedule on changes that.</source>
            <translation>Der Zeitplan ist nicht in Gebrauch; nocturoctl schedule on ändert das.</translation>
        </message>
        <message>
            <source>Nothing is scheduled.</source>
            <translation>Nichts ist geplant.</translation>
        </message>
        <message>
            <source>There is no display "%@"; nocturoctl screens lists their numbers, names and identifiers.</source>
            <translation>Einen Bildschirm „%@“ gibt es nicht; nocturoctl screens nennt ihre Nummern, Namen und Kennungen.</translation>
        </message>
        <message>
            <source>There is no effect "%@"; the effects are %@.</source>
            <translation>Einen Effekt „%@“ gibt es nicht; die Effekte sind %@.</translation>
        </message>
        <message>
            <source>About %@</source>
            <translation>Über %@</translation>
        </message>
        <message>
            <source>Version %@</source>
            <translation>Version %@</translation>
        </message>
        <message>
            <source>Credits.html</source>
            <translation>Credits_de.html</translation>
        </message>
        <message>
            <source>Nocturo User Guide</source>
            <translation>Nocturo-Benutzerhandbuch</translation>
        </message>
        <message>
            <source>%@ is held by another program. Choose another hot key.</source>
            <translation>%@ gehört einem anderen Programm. Wählen Sie ein anderes Tastenkürzel.</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>Kopieren</translation>
        </message>
        <message>
            <source>Change...</source>
            <translation>Ändern...</translation>
        </message>
        <message>
            <source>Ask</source>
            <translation>Fragen</translation>
        </message>
        <message>
            <source>Hot key</source>
            <translation>Tastenkürzel</translation>
        </message>
        <message>
            <source>Press the new hot key, with Ctrl, Alt or Super, or Escape to leave it as it was.</source>
            <translation>Drücken Sie das neue Tastenkürzel, mit Strg, Alt oder Super, oder Esc, um es zu lassen, wie es war.</translation>
        </message>
        <message>
            <source>Click or press Space to record another shortcut.</source>
            <translation>Klicken Sie oder drücken Sie die Leertaste, um ein anderes Tastenkürzel aufzunehmen.</translation>
        </message>
        <message>
            <source>With Ctrl, Alt or Super</source>
            <translation>Mit Strg, Alt oder Super</translation>
        </message>
        <message>
            <source>Press keys, Esc cancels</source>
            <translation>Tasten drücken, Esc bricht ab</translation>
        </message>
        <message>
            <source>Save as a look...</source>
            <translation>Als Look speichern...</translation>
        </message>
        <message>
            <source>Keeps the effects under a name of your own</source>
            <translation>Behält die Effekte unter einem eigenen Namen</translation>
        </message>
        <message>
            <source>Change</source>
            <translation>Ändern</translation>
        </message>
        <message>
            <source>Renames, moves or deletes the look that is marked</source>
            <translation>Benennt den markierten Look um, verschiebt oder löscht ihn</translation>
        </message>
        <message>
            <source>A click puts a look on the screens, another one takes it away</source>
            <translation>Ein Klick bringt einen Look auf die Bildschirme, ein weiterer nimmt ihn weg</translation>
        </message>
        <message>
            <source>Rename...</source>
            <translation>Umbenennen...</translation>
        </message>
        <message>
            <source>Move to the front</source>
            <translation>Nach vorn</translation>
        </message>
        <message>
            <source>Move to the back</source>
            <translation>Nach hinten</translation>
        </message>
        <message>
            <source>Delete...</source>
            <translation>Löschen...</translation>
        </message>
        <message>
            <source>Save as a look</source>
            <translation>Als Look speichern</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>Rename Look</source>
            <translation>Look umbenennen</translation>
        </message>
        <message>
            <source>Rename</source>
            <translation>Umbenennen</translation>
        </message>
        <message>
            <source>Delete the look "%@"?</source>
            <translation>Den Look „%@“ löschen?</translation>
        </message>
        <message>
            <source>It will be missed by: %@.</source>
            <translation>Er fehlt dann hier: %@.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Löschen</translation>
        </message>
        <message>
            <source>Name:</source>
            <translation>Name:</translation>
        </message>
        <message>
            <source>There is a look "%@" already.</source>
            <translation>Einen Look „%@“ gibt es schon.</translation>
        </message>
        <message>
            <source>Replace</source>
            <translation>Ersetzen</translation>
        </message>
        <message>
            <source>This desktop shows no tray at the moment; Nocturo can be reached through the applications menu.</source>
            <translation>Dieser Desktop zeigt momentan kein Benachrichtigungsfeld an; Nocturo ist über das Anwendungsmenü erreichbar.</translation>
        </message>
        <message>
            <source>“%@” is not an effect document.</source>
            <translation>„%@“ ist kein Effektdokument.</translation>
        </message>
        <message>
            <source>Opening failed</source>
            <translation>Öffnen fehlgeschlagen</translation>
        </message>
        <message>
            <source>&amp;Effect</source>
            <translation>&amp;Effekt</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>&amp;Datei</translation>
        </message>
        <message>
            <source>&amp;Open...</source>
            <translation>Ö&amp;ffnen …</translation>
        </message>
        <message>
            <source>Open &amp;Recent</source>
            <translation>&amp;Zuletzt geöffnet</translation>
        </message>
        <message>
            <source>&amp;Clear Menu</source>
            <translation>Liste &amp;leeren</translation>
        </message>
        <message>
            <source>&amp;Save...</source>
            <translation>&amp;Speichern …</translation>
        </message>
        <message>
            <source>&amp;Preferences...</source>
            <translation>&amp;Einstellungen …</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>S&amp;chließen</translation>
        </message>
        <message>
            <source>&amp;Quit Nocturo</source>
            <translation>Nocturo &amp;beenden</translation>
        </message>
        <message>
            <source>&amp;Help</source>
            <translation>&amp;Hilfe</translation>
        </message>
        <message>
            <source>User &amp;Guide</source>
            <translation>Benutzer&amp;handbuch</translation>
        </message>
        <message>
            <source>&amp;About Nocturo</source>
            <translation>Ü&amp;ber Nocturo</translation>
        </message>
        <message>
            <source>red</source>
            <translation>Rot</translation>
        </message>
        <message>
            <source>orange</source>
            <translation>Orange</translation>
        </message>
        <message>
            <source>yellow</source>
            <translation>Gelb</translation>
        </message>
        <message>
            <source>lime</source>
            <translation>Hellgrün</translation>
        </message>
        <message>
            <source>green</source>
            <translation>Grün</translation>
        </message>
        <message>
            <source>sea green</source>
            <translation>Seegrün</translation>
        </message>
        <message>
            <source>cyan</source>
            <translation>Cyan</translation>
        </message>
        <message>
            <source>azure</source>
            <translation>Azurblau</translation>
        </message>
        <message>
            <source>blue</source>
            <translation>Blau</translation>
        </message>
        <message>
            <source>violet</source>
            <translation>Violett</translation>
        </message>
        <message>
            <source>magenta</source>
            <translation>Magenta</translation>
        </message>
        <message>
            <source>pink</source>
            <translation>Rosa</translation>
        </message>
        <message>
            <source>candle</source>
            <translation>Kerze</translation>
        </message>
        <message>
            <source>tungsten</source>
            <translation>Glühlampe</translation>
        </message>
        <message>
            <source>sunset</source>
            <translation>Sonnenuntergang</translation>
        </message>
        <message>
            <source>daylight</source>
            <translation>Tageslicht</translation>
        </message>
        <message>
            <source>The screens are hard to read now. They go back by themselves in %d s.</source>
            <translation>Die Bildschirme sind jetzt schwer zu lesen. In %d s werden die vorherigen Farben wiederhergestellt.</translation>
        </message>
        <message>
            <source>Keep these colors?</source>
            <translation>Diese Farben beibehalten?</translation>
        </message>
        <message>
            <source>&amp;Keep</source>
            <translation>&amp;Beibehalten</translation>
        </message>
        <message>
            <source>&amp;Go back</source>
            <translation>&amp;Zurücknehmen</translation>
        </message>
        <message>
            <source>Close anyway</source>
            <translation>Trotzdem schließen</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message>
            <source>Nocturo effects</source>
            <translation>Nocturo-Effekte</translation>
        </message>
        <message>
            <source>Save Effect</source>
            <translation>Effekt speichern</translation>
        </message>
        <message>
            <source>&amp;Hide extension</source>
            <translation>&amp;Dateiendung ausblenden</translation>
        </message>
        <message>
            <source>Saving failed</source>
            <translation>Speichern fehlgeschlagen</translation>
        </message>
        <message>
            <source>Could not save settings at this location.</source>
            <translation>Die Einstellungen konnten an diesem Ort nicht gespeichert werden.</translation>
        </message>
        <message>
            <source>Open Effect</source>
            <translation>Effekt öffnen</translation>
        </message>
        <message>
            <source>As all screens</source>
            <translation>Wie alle Bildschirme</translation>
        </message>
        <message>
            <source> %</source>
            <translation> %</translation>
        </message>
        <message>
            <source> s</source>
            <translation> s</translation>
        </message>
        <message>
            <source>at once</source>
            <translation>sofort</translation>
        </message>
        <message>
            <source>R</source>
            <translation>R</translation>
        </message>
        <message>
            <source>G</source>
            <translation>G</translation>
        </message>
        <message>
            <source>B</source>
            <translation>B</translation>
        </message>
        <message>
            <source>Input</source>
            <translation>Eingang</translation>
        </message>
        <message>
            <source>Output</source>
            <translation>Ausgang</translation>
        </message>
        <message>
            <source>The colors of this screen cannot be changed.</source>
            <translation>Die Farben dieses Bildschirms lassen sich nicht ändern.</translation>
        </message>
        <message>
            <source>Before</source>
            <translation>Vorher</translation>
        </message>
        <message>
            <source>With effect</source>
            <translation>Mit Effekt</translation>
        </message>
        <message>
            <source>Clipped</source>
            <translation>Abgeschnitten</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Vorschau</translation>
        </message>
        <message>
            <source>brightness from %@ to %@</source>
            <translation>Helligkeit von %@ bis %@</translation>
        </message>
        <message>
            <source>%@ strongest</source>
            <translation>%@ am stärksten</translation>
        </message>
        <message>
            <source>%@ and %@ strongest</source>
            <translation>%@ und %@ am stärksten</translation>
        </message>
        <message>
            <source>inverted</source>
            <translation>invertiert</translation>
        </message>
        <message>
            <source>bright tones clipped</source>
            <translation>helle Töne abgeschnitten</translation>
        </message>
        <message>
            <source>dark tones clipped</source>
            <translation>dunkle Töne abgeschnitten</translation>
        </message>
        <message>
            <source>almost nothing can be told apart</source>
            <translation>fast nichts zu unterscheiden</translation>
        </message>
        <message>
            <source>, </source>
            <translation>, </translation>
        </message>
        <message>
            <source>%@: %@</source>
            <translation>%@: %@</translation>
        </message>
        <message>
            <source>%@ (%@)</source>
            <translation>%@ (%@)</translation>
        </message>
        <message>
            <source>&amp;Choose looks by what is in front</source>
            <translation>Looks danach wählen, was &amp;vorn ist</translation>
        </message>
        <message>
            <source>Rules</source>
            <translation>Regeln</translation>
        </message>
        <message>
            <source>Of the rules that hold for a screen the first one counts.</source>
            <translation>Von den Regeln, die für einen Bildschirm gelten, zählt die erste.</translation>
        </message>
        <message>
            <source>As its windows are called</source>
            <translation>Wie seine Fenster heißen</translation>
        </message>
        <message>
            <source>P&amp;ick a window</source>
            <translation>Fens&amp;ter wählen</translation>
        </message>
        <message>
            <source>The next window that comes to the front tells its program</source>
            <translation>Das nächste Fenster, das nach vorn kommt, verrät sein Programm</translation>
        </message>
        <message>
            <source>&amp;When:</source>
            <translation>&amp;Wann:</translation>
        </message>
        <message>
            <source>&amp;Program:</source>
            <translation>&amp;Programm:</translation>
        </message>
        <message>
            <source>&amp;Look:</source>
            <translation>&amp;Look:</translation>
        </message>
        <message>
            <source>&amp;Add</source>
            <translation>Hin&amp;zufügen</translation>
        </message>
        <message>
            <source>&amp;Remove</source>
            <translation>E&amp;ntfernen</translation>
        </message>
        <message>
            <source>Move the rule up</source>
            <translation>Regel nach oben</translation>
        </message>
        <message>
            <source>Move the rule down</source>
            <translation>Regel nach unten</translation>
        </message>
        <message>
            <source>A window fills a screen</source>
            <translation>Ein Fenster füllt einen Bildschirm</translation>
        </message>
        <message>
            <source>A program is in front</source>
            <translation>Ein Programm ist vorn</translation>
        </message>
        <message>
            <source>A game is running</source>
            <translation>Ein Spiel läuft</translation>
        </message>
        <message>
            <source>No rule holds now.</source>
            <translation>Gerade gilt keine Regel.</translation>
        </message>
        <message>
            <source>Now: %@</source>
            <translation>Jetzt: %@</translation>
        </message>
        <message>
            <source>Now click a window of the program.</source>
            <translation>Klicken Sie jetzt auf ein Fenster des Programms.</translation>
        </message>
        <message>
            <source> min</source>
            <translation> min</translation>
        </message>
        <message>
            <source>&amp;Choose looks by the clock and the sun</source>
            <translation>Looks nach &amp;Uhr und Sonne wählen</translation>
        </message>
        <message>
            <source>Pa&amp;use</source>
            <translation>&amp;Pause</translation>
        </message>
        <message>
            <source>A pause gives the screens their own colors for a while.</source>
            <translation>Eine Pause gibt den Bildschirmen für eine Weile ihre eigenen Farben.</translation>
        </message>
        <message>
            <source>Resu&amp;me</source>
            <translation>F&amp;ortfahren</translation>
        </message>
        <message>
            <source>Latitude and longitude, such as 52.5 13.4; by the time zone where empty</source>
            <translation>Breite und Länge, etwa 52.5 13.4; leer: nach Zeitzone</translation>
        </message>
        <message>
            <source>How long the colors take to change when a point comes</source>
            <translation>Wie lange die Farben für den Wechsel brauchen, wenn ein Punkt kommt</translation>
        </message>
        <message>
            <source>&amp;Place of the sun:</source>
            <translation>O&amp;rt der Sonne:</translation>
        </message>
        <message>
            <source>Change o&amp;ver:</source>
            <translation>Ü&amp;bergang:</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Zeitplan</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Uhrzeit</translation>
        </message>
        <message>
            <source>Dawn</source>
            <translation>Morgendämmerung</translation>
        </message>
        <message>
            <source>Sunrise</source>
            <translation>Sonnenaufgang</translation>
        </message>
        <message>
            <source>Sunset</source>
            <translation>Sonnenuntergang</translation>
        </message>
        <message>
            <source>Dusk</source>
            <translation>Abenddämmerung</translation>
        </message>
        <message>
            <source>Minutes before or after the sun</source>
            <translation>Minuten vor oder nach der Sonne</translation>
        </message>
        <message>
            <source>Next: %1$@ at %2$@</source>
            <translation>Als Nächstes: %1$@ um %2$@</translation>
        </message>
        <message>
            <source>Not in use.</source>
            <translation>Nicht in Gebrauch.</translation>
        </message>
        <message>
            <source>Paused until %1$@, %2$@ h left</source>
            <translation>Pause bis %1$@, noch %2$@ h</translation>
        </message>
        <message>
            <source>To see what the effects do, start it with --display-services=simulated.</source>
            <translation>Um zu sehen, was die Effekte bewirken, starten Sie es mit --display-services=simulated.</translation>
        </message>
        <message>
            <source>%@ offers Nocturo no way to change the colors of displays under Wayland.</source>
            <translation>%@ bietet Nocturo unter Wayland keinen Weg, die Farben von Bildschirmen zu ändern.</translation>
        </message>
        <message>
            <source>This desktop</source>
            <translation>Dieser Desktop</translation>
        </message>
        <message>
            <source>There is no X server to work with, because DISPLAY is not set.</source>
            <translation>Es gibt keinen X-Server, denn DISPLAY ist nicht gesetzt.</translation>
        </message>
        <message>
            <source>Another Nocturo drives the displays of the X server %@.</source>
            <translation>Ein anderes Nocturo steuert die Bildschirme des X-Servers %@.</translation>
        </message>
        <message>
            <source>Another Nocturo drives the displays of %@.</source>
            <translation>Ein anderes Nocturo steuert die Bildschirme von %@.</translation>
        </message>
        <message>
            <source>Neither GNOME nor Cinnamon is on the session bus.</source>
            <translation>Weder GNOME noch Cinnamon ist am Sitzungsbus.</translation>
        </message>
        <message>
            <source>No Wayland compositor answers.</source>
            <translation>Kein Wayland-Compositor antwortet.</translation>
        </message>
        <message>
            <source>Plasma 5 offers Nocturo no way to change the colors of displays under Wayland; choose its X11 session when logging in, or use Plasma 6.</source>
            <translation>Plasma 5 bietet Nocturo unter Wayland keine Möglichkeit, die Farben von Bildschirmen zu ändern; wählen Sie beim Anmelden seine X11-Sitzung oder verwenden Sie Plasma 6.</translation>
        </message>
        <message>
            <source>Displays are simulated; their pictures are in %@.</source>
            <translation>Die Bildschirme sind simuliert; ihre Bilder liegen in %@.</translation>
        </message>
        <message>
            <source>The X server %@ is only a guest of a Wayland session and cannot change its colors; displays under Wayland come with a later version.</source>
            <translation>Der X-Server %@ ist nur Gast einer Wayland-Sitzung und kann deren Farben nicht ändern; Bildschirme unter Wayland folgen in einer späteren Version.</translation>
        </message>
        <message>
            <source>The X server %@ has no RandR 1.3 or later.</source>
            <translation>Der X-Server %@ hat kein RandR 1.3 oder neuer.</translation>
        </message>
        <message>
            <source>The X server %@ cannot be reached.</source>
            <translation>Der X-Server %@ ist nicht erreichbar.</translation>
        </message>
        <message>
            <source>There are no looks.</source>
            <translation>Es gibt keine Looks.</translation>
        </message>
        <message>
            <source>No look was applied from which one could go back.</source>
            <translation>Es wurde kein Look angewandt, von dem aus man zurückgehen könnte.</translation>
        </message>
        <message>
            <source>Night reading</source>
            <translation>Lesen bei Nacht</translation>
        </message>
        <message>
            <source>Warm evening</source>
            <translation>Warmer Abend</translation>
        </message>
        <message>
            <source>Red night vision</source>
            <translation>Rotes Nachtsehen</translation>
        </message>
        <message>
            <source>Just dimmer</source>
            <translation>Nur dunkler</translation>
        </message>
        <message>
            <source>Paper tint</source>
            <translation>Papierton</translation>
        </message>
        <message>
            <source>"%@" cannot be the name of a look.</source>
            <translation>„%@“ kann nicht der Name eines Looks sein.</translation>
        </message>
        <message>
            <source>The look "%@" comes with Nocturo and stays as it is.</source>
            <translation>Der Look „%@“ gehört zu Nocturo und bleibt, wie er ist.</translation>
        </message>
        <message>
            <source>This desktop takes hot keys from its own settings. Add a shortcut for this command there:</source>
            <translation>Dieser Desktop nimmt Tastenkürzel aus seinen eigenen Einstellungen. Legen Sie dort eines für diesen Befehl an:</translation>
        </message>
        <message>
            <source>This desktop takes hot keys from its own configuration. Put this line there:</source>
            <translation>Dieser Desktop nimmt Tastenkürzel aus seiner eigenen Konfiguration. Schreiben Sie diese Zeile hinein:</translation>
        </message>
        <message>
            <source>The desktop is asked whether Nocturo may have it.</source>
            <translation>Der Desktop wird gefragt, ob Nocturo es haben darf.</translation>
        </message>
        <message>
            <source>This desktop has not been asked for it yet.</source>
            <translation>Dieser Desktop ist noch nicht danach gefragt worden.</translation>
        </message>
        <message>
            <source>The desktop has refused it.</source>
            <translation>Der Desktop hat es abgelehnt.</translation>
        </message>
        <message>
            <source>The desktop has it as %@; its own settings change that.</source>
            <translation>Der Desktop führt es als %@; ändern lässt sich das in seinen Einstellungen.</translation>
        </message>
        <message>
            <source>A hot key is one key and any of ctrl, alt, shift and super, joined by +, such as ctrl+super+F5; nocturoctl hotkey --help lists the keys.</source>
            <translation>Ein Tastenkürzel ist eine Taste mit beliebigen von ctrl, alt, shift und super, verbunden mit +, etwa ctrl+super+F5; nocturoctl hotkey --help nennt die Tasten.</translation>
        </message>
        <message>
            <source>No hot key was given.</source>
            <translation>Es wurde kein Tastenkürzel angegeben.</translation>
        </message>
        <message>
            <source>"%@" has a plus sign with nothing before or after it.</source>
            <translation>„%@“ enthält ein Pluszeichen, vor oder nach dem nichts steht.</translation>
        </message>
        <message>
            <source>"%@" and "%@" are both keys, but a hot key has only one.</source>
            <translation>„%@“ und „%@“ sind beides Tasten, ein Tastenkürzel hat aber nur eine.</translation>
        </message>
        <message>
            <source>"%@" has no key besides its modifiers.</source>
            <translation>„%@“ hat außer Zusatztasten keine Taste.</translation>
        </message>
        <message>
            <source>"%@" is not a key's name, and no key of the current keyboard layout types it.</source>
            <translation>„%@“ ist kein Tastenname, und keine Taste der aktuellen Tastaturbelegung schreibt es.</translation>
        </message>
        <message>
            <source>"%@" is not a key's name, and the keyboard layout that could tell which key types it cannot be read.</source>
            <translation>„%@“ ist kein Tastenname, und die Tastaturbelegung, die sagen könnte, welche Taste es schreibt, ist nicht lesbar.</translation>
        </message>
        <message>
            <source>"%@" needs a modifier: only function, arrow and navigation keys can be hot keys alone.</source>
            <translation>„%@“ braucht eine Zusatztaste: Nur Funktions-, Pfeil- und Navigationstasten können allein Tastenkürzel sein.</translation>
        </message>
        <message>
            <source>Ctrl</source>
            <translation>Strg</translation>
        </message>
        <message>
            <source>Alt</source>
            <translation>Alt</translation>
        </message>
        <message>
            <source>Shift</source>
            <translation>Umschalt</translation>
        </message>
        <message>
            <source>Super</source>
            <translation>Super</translation>
        </message>
        <message>
            <source>Return</source>
            <translation>Eingabe</translation>
        </message>
        <message>
            <source>Tab</source>
            <translation>Tab</translation>
        </message>
        <message>
            <source>Space</source>
            <translation>Leertaste</translation>
        </message>
        <message>
            <source>Backspace</source>
            <translation>Rücktaste</translation>
        </message>
        <message>
            <source>Esc</source>
            <translation>Esc</translation>
        </message>
        <message>
            <source>Volume Up</source>
            <translation>Lauter</translation>
        </message>
        <message>
            <source>Volume Down</source>
            <translation>Leiser</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>Ton aus</translation>
        </message>
        <message>
            <source>Menu</source>
            <translation>Menü</translation>
        </message>
        <message>
            <source>Ins</source>
            <translation>Einfg</translation>
        </message>
        <message>
            <source>Home</source>
            <translation>Pos1</translation>
        </message>
        <message>
            <source>Page Up</source>
            <translation>Bild auf</translation>
        </message>
        <message>
            <source>Del</source>
            <translation>Entf</translation>
        </message>
        <message>
            <source>End</source>
            <translation>Ende</translation>
        </message>
        <message>
            <source>Page Down</source>
            <translation>Bild ab</translation>
        </message>
        <message>
            <source>Left</source>
            <translation>Links</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>Rechts</translation>
        </message>
        <message>
            <source>Down</source>
            <translation>Ab</translation>
        </message>
        <message>
            <source>Up</source>
            <translation>Auf</translation>
        </message>
        <message>
            <source>Activate or Deactivate Effect</source>
            <translation>Effekt ein- oder ausschalten</translation>
        </message>
        <message>
            <source>Windows come with the package nocturo-desktop, which is not installed.</source>
            <translation>Fenster bringt das Paket nocturo-desktop mit, das nicht installiert ist.</translation>
        </message>
        <message>
            <source>Windows cannot be shown: %@.</source>
            <translation>Fenster können nicht gezeigt werden: %@.</translation>
        </message>
        <message>
            <source>Windows cannot be shown before Nocturo is started again, because another version was installed meanwhile.</source>
            <translation>Fenster können erst nach einem Neustart von Nocturo gezeigt werden, weil inzwischen eine andere Version installiert wurde.</translation>
        </message>
        <message>
            <source>The display server has gone, so Nocturo ends.</source>
            <translation>Der Anzeigeserver ist verschwunden, daher wird Nocturo beendet.</translation>
        </message>
        <message>
            <source>Nocturo is already running.</source>
            <translation>Nocturo läuft bereits.</translation>
        </message>
        <message>
            <source>The runtime directory cannot be used; set XDG_RUNTIME_DIR to one of yours.</source>
            <translation>Das Laufzeitverzeichnis kann nicht benutzt werden; setzen Sie XDG_RUNTIME_DIR auf ein eigenes Verzeichnis.</translation>
        </message>
        <message>
            <source>Nocturo starts switched off, because nocturoctl restore gave the displays back.</source>
            <translation>Nocturo startet ausgeschaltet, weil nocturoctl restore die Bildschirme zurückgegeben hat.</translation>
        </message>
        <message>
            <source>Nocturo starts switched off.</source>
            <translation>Nocturo startet ausgeschaltet.</translation>
        </message>
        <message>
            <source>Changes how whole screens look: inverted, overexposed, dimmed or lightened, in
the HDTV range or through a color filter. Runs until it is told to quit, and
gives every display back then. Drive it with nocturoctl.</source>
            <translation>Verändert, wie ganze Bildschirme aussehen: invertiert, überbelichtet, abgedunkelt
oder aufgehellt, im HDTV-Bereich oder durch einen Farbfilter. Läuft bis zum Beenden
und gibt dann jedem Bildschirm seine Farben zurück. Gesteuert wird es mit nocturoctl.</translation>
        </message>
        <message>
            <source>Options:</source>
            <translation>Optionen:</translation>
        </message>
        <message>
            <source>where the displays come from:</source>
            <translation>woher die Bildschirme kommen:</translation>
        </message>
        <message>
            <source>what this session offers (default)</source>
            <translation>was diese Sitzung bietet (Vorgabe)</translation>
        </message>
        <message>
            <source>an X server</source>
            <translation>ein X-Server</translation>
        </message>
        <message>
            <source>a Wayland compositor like sway</source>
            <translation>ein Wayland-Compositor wie sway</translation>
        </message>
        <message>
            <source>GNOME or Cinnamon</source>
            <translation>GNOME oder Cinnamon</translation>
        </message>
        <message>
            <source>KDE Plasma 6</source>
            <translation>KDE Plasma 6</translation>
        </message>
        <message>
            <source>N displays, 1 to 16 (default 2),</source>
            <translation>N Bildschirme, 1 bis 16 (Vorgabe: 2),</translation>
        </message>
        <message>
            <source>in memory, drawn into pictures</source>
            <translation>im Speicher, in Bilder gezeichnet</translation>
        </message>
        <message>
            <source>start with the effect off</source>
            <translation>mit ausgeschaltetem Effekt starten</translation>
        </message>
        <message>
            <source>start with the session, asking nothing</source>
            <translation>mit der Sitzung starten, ohne zu fragen</translation>
        </message>
        <message>
            <source>show this text</source>
            <translation>diesen Text zeigen</translation>
        </message>
        <message>
            <source>show the version</source>
            <translation>die Version zeigen</translation>
        </message>
        <message>
            <source>A FILE is an effect document (.nocturo) to open, by the Nocturo that runs if
there is one. Starting Nocturo a second time without one toggles the effect.</source>
            <translation>Eine Datei (FILE) ist ein Effektdokument (.nocturo); das laufende Nocturo öffnet es,
wenn es eines gibt. Ohne Datei schaltet ein zweiter Start von Nocturo den Effekt um.</translation>
        </message>
        <message>
            <source>There is no option "%@"; see nocturo --help.</source>
            <translation>Eine Option „%@“ gibt es nicht; siehe nocturo --help.</translation>
        </message>
        <message>
            <source>--display-services takes %@ or simulated:N with N from 1 to 16.</source>
            <translation>--display-services nimmt %@ oder simulated:N mit N von 1 bis 16.</translation>
        </message>
        <message>
            <source>Without a session bus the Nocturo that runs cannot be given a document.</source>
            <translation>Ohne Sitzungsbus kann dem laufenden Nocturo kein Dokument übergeben werden.</translation>
        </message>
        <message>
            <source>"%@" is no identifier of a display with a look, such as 71524911 Night reading.</source>
            <translation>„%@“ ist keine Kennung eines Bildschirms mit einem Look, wie etwa 71524911 Night reading.</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ looks at most.</source>
            <translation>„%1$@“ nimmt eine Liste von höchstens %2$@ Looks.</translation>
        </message>
        <message>
            <source>"%@" is no rule, such as fullscreen off or program mpv Warm evening.</source>
            <translation>„%@“ ist keine Regel wie fullscreen off oder program mpv Warm evening.</translation>
        </message>
        <message>
            <source>"%@" is no point of a schedule, such as 07:00 off or sunset-00:30 Warm evening.</source>
            <translation>„%@“ ist kein Punkt eines Zeitplans wie 07:00 off oder sunset-00:30 Warm evening.</translation>
        </message>
        <message>
            <source>It holds until Nocturo quits; the settings cannot be saved to %1$@ (%2$@).</source>
            <translation>Es gilt, bis Nocturo beendet wird; die Einstellungen können nicht in %1$@ gesichert werden (%2$@).</translation>
        </message>
        <message>
            <source>the file that is there cannot be read</source>
            <translation>die Datei dort kann nicht gelesen werden</translation>
        </message>
        <message>
            <source>the selected effects</source>
            <translation>die gewählten Effekte</translation>
        </message>
        <message>
            <source>switch the effect on at every start</source>
            <translation>den Effekt bei jedem Start einschalten</translation>
        </message>
        <message>
            <source>starting Nocturo again toggles the effect</source>
            <translation>erneutes Starten von Nocturo schaltet den Effekt um</translation>
        </message>
        <message>
            <source>while on, apply again every 6 seconds</source>
            <translation>solange eingeschaltet, alle 6 Sekunden erneut anwenden</translation>
        </message>
        <message>
            <source>pause while the screen saver runs</source>
            <translation>pausieren, während der Bildschirmschoner läuft</translation>
        </message>
        <message>
            <source>toggle with the global hot key</source>
            <translation>mit dem globalen Tastenkürzel umschalten</translation>
        </message>
        <message>
            <source>1: run as a tray item</source>
            <translation>1: als Symbol im Benachrichtigungsfeld laufen</translation>
        </message>
        <message>
            <source>virtual key code of the hot key</source>
            <translation>virtueller Tastencode des Tastenkürzels</translation>
        </message>
        <message>
            <source>modifier flags of the hot key</source>
            <translation>Zusatztasten des Tastenkürzels, als Bits</translation>
        </message>
        <message>
            <source>whether the effect was last switched on</source>
            <translation>ob der Effekt zuletzt eingeschaltet war</translation>
        </message>
        <message>
            <source>the affected displays; none means all</source>
            <translation>die betroffenen Bildschirme; keiner heißt alle</translation>
        </message>
        <message>
            <source>the display last picked; 0 means all</source>
            <translation>der zuletzt gewählte Bildschirm; 0 heißt alle</translation>
        </message>
        <message>
            <source>dim: -1 black, 0 unchanged, 1 white</source>
            <translation>Abdunkeln: -1 schwarz, 0 unverändert, 1 weiß</translation>
        </message>
        <message>
            <source>color filter: hue in degrees</source>
            <translation>Farbfilter: Farbton in Grad</translation>
        </message>
        <message>
            <source>color filter: strength, 0 to 1</source>
            <translation>Farbfilter: Stärke, 0 bis 1</translation>
        </message>
        <message>
            <source>seconds that a change fades for, 0 to 5</source>
            <translation>Sekunden, die ein Übergang dauert, 0 bis 5</translation>
        </message>
        <message>
            <source>switch and choose looks by the schedule</source>
            <translation>nach dem Zeitplan schalten und Looks wählen</translation>
        </message>
        <message>
            <source>the schedule: times with looks or off</source>
            <translation>der Zeitplan: Zeiten mit Looks oder off</translation>
        </message>
        <message>
            <source>where the sun is looked at; empty: by the time zone</source>
            <translation>wo die Sonne betrachtet wird; leer: nach Zeitzone</translation>
        </message>
        <message>
            <source>minutes that a change by the schedule fades for, 0 to 60</source>
            <translation>Minuten, die ein Übergang nach Zeitplan dauert, 0 bis 60</translation>
        </message>
        <message>
            <source>switch and choose looks by the rules</source>
            <translation>nach den Regeln schalten und Looks wählen</translation>
        </message>
        <message>
            <source>the rules: what is in front, with looks or off</source>
            <translation>die Regeln: was vorn ist, mit Looks oder off</translation>
        </message>
        <message>
            <source>displays by identifier with looks of their own</source>
            <translation>Bildschirme mit eigenen Looks, nach Kennung</translation>
        </message>
        <message>
            <source>the f.lux warning was answered</source>
            <translation>die Warnung vor f.lux wurde beantwortet</translation>
        </message>
        <message>
            <source>"%@" takes a list of effects.</source>
            <translation>„%@“ nimmt eine Liste von Effekten.</translation>
        </message>
        <message>
            <source>"%@" takes a list of effect names.</source>
            <translation>„%@“ nimmt eine Liste von Effektnamen.</translation>
        </message>
        <message>
            <source>"%1$@" takes effects only, and there is no effect "%2$@".</source>
            <translation>„%1$@“ nimmt nur Effekte, und einen Effekt „%2$@“ gibt es nicht.</translation>
        </message>
        <message>
            <source>"%@" takes a place such as 52.5 13.4 or 33.9S 151.2E.</source>
            <translation>„%@“ nimmt einen Ort wie 52.5 13.4 oder 33.9S 151.2E.</translation>
        </message>
        <message>
            <source>"%@" takes true or false.</source>
            <translation>„%@“ nimmt true oder false.</translation>
        </message>
        <message>
            <source>"%@" takes a whole number.</source>
            <translation>„%@“ nimmt eine ganze Zahl.</translation>
        </message>
        <message>
            <source>"%@" takes a finite number.</source>
            <translation>„%@“ nimmt eine endliche Zahl.</translation>
        </message>
        <message>
            <source>"%@" takes a list of display identifiers.</source>
            <translation>„%@“ nimmt eine Liste von Bildschirmkennungen.</translation>
        </message>
    </context>
    <context>
        <name>ZQFluxCheck</name>
        <message>
            <source>%@ is present on this computer.</source>
            <translation>%@ ist auf diesem Computer vorhanden.</translation>
        </message>
        <message>
            <source>[%1$@ installed, might interfer %2$@.]</source>
            <translation>%2$@ ändert ebenfalls die Farben der Bildschirme und kann %1$@ daher in die Quere kommen: Jedes der beiden Programme kann rückgängig machen, was das andere tut. Verwenden Sie am besten nur eines davon zur selben Zeit.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Fortfahren</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>Beenden</translation>
        </message>
    </context>
</TS>
