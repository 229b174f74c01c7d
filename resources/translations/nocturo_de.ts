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
            <source>Effects</source>
            <translation>Effekte</translation>
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
            <source>H&amp;ue:</source>
            <translation>Farb&amp;ton:</translation>
        </message>
        <message>
            <source>The color that passes the filter</source>
            <translation>Die Farbe, die der Filter durchlässt</translation>
        </message>
        <message>
            <source>Vivid&amp;ness:</source>
            <translation>&amp;Sättigung:</translation>
        </message>
        <message>
            <source>How much of the other colors the filter takes away</source>
            <translation>Wie viel der Filter von den anderen Farben wegnimmt</translation>
        </message>
        <message>
            <source>&amp;Dim or lighten</source>
            <translation>&amp;Abdunkeln oder aufhellen</translation>
        </message>
        <message>
            <source>Moves every color toward black or toward white</source>
            <translation>Verschiebt alle Farben in Richtung Schwarz oder Weiß</translation>
        </message>
        <message>
            <source>&amp;Level:</source>
            <translation>Stä&amp;rke:</translation>
        </message>
        <message>
            <source>Negative values make the screen darker, positive ones lighter</source>
            <translation>Negative Werte machen den Bildschirm dunkler, positive heller</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Vorschau</translation>
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
            <source>Screens</source>
            <translation>Bildschirme</translation>
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
            <source>Switching</source>
            <translation>Ein- und Ausschalten</translation>
        </message>
        <message>
            <source>Otherwise Nocturo starts as you left it</source>
            <translation>Sonst startet Nocturo so, wie Sie es verlassen haben</translation>
        </message>
        <message>
            <source>Switch on when Nocturo s&amp;tarts</source>
            <translation>Beim Start von Nocturo &amp;einschalten</translation>
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
            <source>Hot key</source>
            <translation>Tastenkürzel</translation>
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
            <source>Application</source>
            <translation>Anwendung</translation>
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
            <source>Op&amp;en...</source>
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
            <source>Activate Effect</source>
            <translation>Effekt einschalten</translation>
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
            <source>This desktop shows no tray at the moment; Nocturo can be reached through the applications menu.</source>
            <translation>Dieser Desktop zeigt momentan kein Benachrichtigungsfeld an; Nocturo ist über das Anwendungsmenü erreichbar.</translation>
        </message>
        <message>
            <source>Deactivate Effect</source>
            <translation>Effekt ausschalten</translation>
        </message>
        <message>
            <source>Clear Menu</source>
            <translation>Liste leeren</translation>
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
            <source>Effect</source>
            <translation>Effekt</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>Hilfe</translation>
        </message>
        <message>
            <source>&amp;About Nocturo</source>
            <translation>Ü&amp;ber Nocturo</translation>
        </message>
        <message>
            <source>Type a shortcut</source>
            <translation>Tasten drücken</translation>
        </message>
        <message>
            <source>Hot key</source>
            <translation>Tastenkürzel</translation>
        </message>
        <message>
            <source>Press the new shortcut, or Escape to leave it as it was.</source>
            <translation>Drücken Sie das neue Tastenkürzel oder Esc, um das bisherige zu behalten.</translation>
        </message>
        <message>
            <source>Click or press Space to record another shortcut.</source>
            <translation>Klicken Sie oder drücken Sie die Leertaste, um ein anderes Tastenkürzel aufzunehmen.</translation>
        </message>
        <message>
            <source>Control</source>
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
            <source>%@ (%@)</source>
            <translation>%@ (%@)</translation>
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
            <source>%@ %%</source>
            <translation>%@ %%</translation>
        </message>
        <message>
            <source>brightness from %@ to %@</source>
            <translation>Helligkeit von %@ bis %@</translation>
        </message>
        <message>
            <source>red</source>
            <translation>Rot</translation>
        </message>
        <message>
            <source>green</source>
            <translation>Grün</translation>
        </message>
        <message>
            <source>blue</source>
            <translation>Blau</translation>
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
            <source>The screens are hard to read now. They go back by themselves in %d s.</source>
            <translation>Die Bildschirme sind jetzt schwer zu lesen. In %d s werden die vorherigen Farben wiederhergestellt.</translation>
        </message>
        <message>
            <source> %</source>
            <translation> %</translation>
        </message>
        <message>
            <source>Close anyway</source>
            <translation>Trotzdem schließen</translation>
        </message>
        <message>
            <source>Nocturo effects</source>
            <translation>Nocturo-Effekte</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>OK</translation>
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
            <source>Opening failed</source>
            <translation>Öffnen fehlgeschlagen</translation>
        </message>
        <message>
            <source>“%@” is not an effect document.</source>
            <translation>„%@“ ist kein Effektdokument.</translation>
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
