<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
    <context>
        <name>NocturoPreferencePanel</name>
        <message>
            <source>Nocturo Preferences</source>
            <translation>Préférences de Nocturo</translation>
        </message>
        <message>
            <source>Effects</source>
            <translation>Effets</translation>
        </message>
        <message>
            <source>&amp;Invert</source>
            <translation>&amp;Inverser</translation>
        </message>
        <message>
            <source>Swaps light and dark</source>
            <translation>Échange le clair et le sombre</translation>
        </message>
        <message>
            <source>&amp;Overexpose</source>
            <translation>S&amp;urexposer</translation>
        </message>
        <message>
            <source>Makes light tones white, so that stripes and backgrounds in light gray vanish</source>
            <translation>Rend blancs les tons clairs, pour que les rayures et les fonds gris clair disparaissent</translation>
        </message>
        <message>
            <source>HDT&amp;V range</source>
            <translation>Plage HDT&amp;V</translation>
        </message>
        <message>
            <source>Fits the picture into the luminance range of a television, 16 to 235</source>
            <translation>Adapte l’image à la plage de luminance d’un téléviseur, de 16 à 235</translation>
        </message>
        <message>
            <source>&amp;Color filter</source>
            <translation>Filtre &amp;coloré</translation>
        </message>
        <message>
            <source>Tints the screen as colored glass would</source>
            <translation>Teinte l’écran comme le ferait un verre coloré</translation>
        </message>
        <message>
            <source>H&amp;ue:</source>
            <translation>&amp;Teinte :</translation>
        </message>
        <message>
            <source>The color that passes the filter</source>
            <translation>La couleur que le filtre laisse passer</translation>
        </message>
        <message>
            <source>Vivid&amp;ness:</source>
            <translation>Viv&amp;acité :</translation>
        </message>
        <message>
            <source>How much of the other colors the filter takes away</source>
            <translation>La part des autres couleurs que le filtre retire</translation>
        </message>
        <message>
            <source>&amp;Dim or lighten</source>
            <translation>Assom&amp;brir ou éclaircir</translation>
        </message>
        <message>
            <source>Moves every color toward black or toward white</source>
            <translation>Rapproche toutes les couleurs du noir ou du blanc</translation>
        </message>
        <message>
            <source>&amp;Level:</source>
            <translation>&amp;Niveau :</translation>
        </message>
        <message>
            <source>Negative values make the screen darker, positive ones lighter</source>
            <translation>Les valeurs négatives assombrissent l’écran, les positives l’éclaircissent</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Aperçu</translation>
        </message>
        <message>
            <source>Sho&amp;w:</source>
            <translation>Affic&amp;her :</translation>
        </message>
        <message>
            <source>The screen whose curves are shown</source>
            <translation>L’écran dont les courbes sont affichées</translation>
        </message>
        <message>
            <source>Screens</source>
            <translation>Écrans</translation>
        </message>
        <message>
            <source>A&amp;pply to:</source>
            <translation>Appli&amp;quer à :</translation>
        </message>
        <message>
            <source>The screens that the effect is applied to</source>
            <translation>Les écrans auxquels l’effet est appliqué</translation>
        </message>
        <message>
            <source>Switching</source>
            <translation>Activation</translation>
        </message>
        <message>
            <source>Otherwise Nocturo starts as you left it</source>
            <translation>Sinon, Nocturo démarre dans l’état où vous l’avez laissé</translation>
        </message>
        <message>
            <source>Switch on when Nocturo s&amp;tarts</source>
            <translation>Activer au &amp;démarrage de Nocturo</translation>
        </message>
        <message>
            <source>Switch on or off when Nocturo is started a&amp;gain</source>
            <translation>Activer ou désactiver quand Nocturo est &amp;relancé</translation>
        </message>
        <message>
            <source>A click on its icon in the launcher then works as a switch</source>
            <translation>Un clic sur son icône dans le lanceur sert alors d’interrupteur</translation>
        </message>
        <message>
            <source>&amp;Reapply every six seconds</source>
            <translation>Réa&amp;ppliquer toutes les six secondes</translation>
        </message>
        <message>
            <source>Keeps the effect when games or other programs reset the colors</source>
            <translation>Conserve l’effet quand des jeux ou d’autres programmes réinitialisent les couleurs</translation>
        </message>
        <message>
            <source>The screen saver then shows its own colors</source>
            <translation>L’économiseur d’écran montre alors ses propres couleurs</translation>
        </message>
        <message>
            <source>P&amp;ause while the screen saver runs</source>
            <translation>Suspendre pendant l’écono&amp;miseur d’écran</translation>
        </message>
        <message>
            <source>Hot key</source>
            <translation>Raccourci clavier</translation>
        </message>
        <message>
            <source>Works in every program, when you let go of the key</source>
            <translation>Fonctionne dans tous les programmes, quand vous relâchez la touche</translation>
        </message>
        <message>
            <source>Switch with the hot &amp;key</source>
            <translation>Activer ou désactiver avec &amp;le raccourci</translation>
        </message>
        <message>
            <source>Application</source>
            <translation>Application</translation>
        </message>
        <message>
            <source>Show Nocturo:</source>
            <translation>Afficher Nocturo :</translation>
        </message>
        <message>
            <source>Nocturo then has no icon of its own in the panel</source>
            <translation>Nocturo n’a alors pas d’icône dans le tableau de bord</translation>
        </message>
        <message>
            <source>As an ordinary application, in the task &amp;bar and launcher</source>
            <translation>Comme application ordinaire, dan&amp;s la barre des tâches et le lanceur</translation>
        </message>
        <message>
            <source>A click on the icon shows Nocturo's menu, a middle click switches the effect</source>
            <translation>Un clic sur l’icône affiche le menu de Nocturo, un clic du milieu bascule l’effet</translation>
        </message>
        <message>
            <source>As an icon in the panel's tra&amp;y</source>
            <translation>Comme icône dans la &amp;zone de notification du tableau de bord</translation>
        </message>
        <message>
            <source>Op&amp;en...</source>
            <translation>&amp;Ouvrir…</translation>
        </message>
        <message>
            <source>Take the effects from a document</source>
            <translation>Reprendre les effets d’un document</translation>
        </message>
        <message>
            <source>&amp;Save...</source>
            <translation>&amp;Enregistrer…</translation>
        </message>
        <message>
            <source>Save the effects as a document</source>
            <translation>Enregistrer les effets dans un document</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Fermer</translation>
        </message>
    </context>
    <context>
        <name>Localizable</name>
        <message>
            <source>About %@</source>
            <translation>À propos de %@</translation>
        </message>
        <message>
            <source>Version %@</source>
            <translation>Version %@</translation>
        </message>
        <message>
            <source>Credits.html</source>
            <translation>Credits_fr.html</translation>
        </message>
        <message>
            <source>No effect has been chosen.</source>
            <translation>Aucun effet n’a été choisi.</translation>
        </message>
        <message>
            <source>You should check at least one box in the preference panel relating to the screen effect, or Nocturo will have no visible effect on your screen.</source>
            <translation>Cochez au moins une case d’effet d’écran dans les préférences, sans quoi Nocturo n’aura aucun effet visible sur votre écran.</translation>
        </message>
        <message>
            <source>Open preferences...</source>
            <translation>Ouvrir les préférences…</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Activate Effect</source>
            <translation>Activer l’effet</translation>
        </message>
        <message>
            <source>Preferences...</source>
            <translation>Préférences…</translation>
        </message>
        <message>
            <source>About Nocturo</source>
            <translation>À propos de Nocturo</translation>
        </message>
        <message>
            <source>Quit Nocturo</source>
            <translation>Quitter Nocturo</translation>
        </message>
        <message>
            <source>This desktop shows no tray at the moment; Nocturo can be reached through the applications menu.</source>
            <translation>Ce bureau n’affiche pas de zone de notification pour le moment ; Nocturo reste accessible par le menu des applications.</translation>
        </message>
        <message>
            <source>Deactivate Effect</source>
            <translation>Désactiver l’effet</translation>
        </message>
        <message>
            <source>Clear Menu</source>
            <translation>Vider le menu</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>&amp;Fichier</translation>
        </message>
        <message>
            <source>&amp;Open...</source>
            <translation>&amp;Ouvrir…</translation>
        </message>
        <message>
            <source>Open &amp;Recent</source>
            <translation>Documents &amp;récents</translation>
        </message>
        <message>
            <source>&amp;Save...</source>
            <translation>&amp;Enregistrer…</translation>
        </message>
        <message>
            <source>&amp;Preferences...</source>
            <translation>&amp;Préférences…</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>&amp;Fermer</translation>
        </message>
        <message>
            <source>&amp;Quit Nocturo</source>
            <translation>&amp;Quitter Nocturo</translation>
        </message>
        <message>
            <source>Effect</source>
            <translation>Effet</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>Aide</translation>
        </message>
        <message>
            <source>&amp;About Nocturo</source>
            <translation>À &amp;propos de Nocturo</translation>
        </message>
        <message>
            <source>Type a shortcut</source>
            <translation>Saisir un raccourci</translation>
        </message>
        <message>
            <source>Hot key</source>
            <translation>Raccourci clavier</translation>
        </message>
        <message>
            <source>Press the new shortcut, or Escape to leave it as it was.</source>
            <translation>Appuyez sur le nouveau raccourci, ou sur Échap pour conserver l’ancien.</translation>
        </message>
        <message>
            <source>Click or press Space to record another shortcut.</source>
            <translation>Cliquez ou appuyez sur Espace pour enregistrer un autre raccourci.</translation>
        </message>
        <message>
            <source>Control</source>
            <translation>Ctrl</translation>
        </message>
        <message>
            <source>Alt</source>
            <translation>Alt</translation>
        </message>
        <message>
            <source>Shift</source>
            <translation>Maj</translation>
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
            <translation>Tous les écrans</translation>
        </message>
        <message>
            <source>Screen %d</source>
            <translation>Écran %d</translation>
        </message>
        <message>
            <source>, %d</source>
            <translation>, %d</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Aucun</translation>
        </message>
        <message>
            <source>Input</source>
            <translation>Entrée</translation>
        </message>
        <message>
            <source>Output</source>
            <translation>Sortie</translation>
        </message>
        <message>
            <source>The colors of this screen cannot be changed.</source>
            <translation>Les couleurs de cet écran ne peuvent pas être modifiées.</translation>
        </message>
        <message>
            <source>Before</source>
            <translation>Avant</translation>
        </message>
        <message>
            <source>With effect</source>
            <translation>Avec l’effet</translation>
        </message>
        <message>
            <source>Clipped</source>
            <translation>Écrêté</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Aperçu</translation>
        </message>
        <message>
            <source>%@ %%</source>
            <translation>%@ %%</translation>
        </message>
        <message>
            <source>brightness from %@ to %@</source>
            <translation>luminosité de %@ à %@</translation>
        </message>
        <message>
            <source>red</source>
            <translation>rouge</translation>
        </message>
        <message>
            <source>green</source>
            <translation>vert</translation>
        </message>
        <message>
            <source>blue</source>
            <translation>bleu</translation>
        </message>
        <message>
            <source>%@ strongest</source>
            <translation>%@ dominant</translation>
        </message>
        <message>
            <source>%@ and %@ strongest</source>
            <translation>%@ et %@ dominants</translation>
        </message>
        <message>
            <source>inverted</source>
            <translation>couleurs inversées</translation>
        </message>
        <message>
            <source>bright tones clipped</source>
            <translation>tons clairs écrêtés</translation>
        </message>
        <message>
            <source>dark tones clipped</source>
            <translation>tons sombres écrêtés</translation>
        </message>
        <message>
            <source>almost nothing can be told apart</source>
            <translation>presque rien ne se distingue</translation>
        </message>
        <message>
            <source>, </source>
            <translation>, </translation>
        </message>
        <message>
            <source>%@: %@</source>
            <translation>%@ : %@</translation>
        </message>
        <message>
            <source>Keep these colors?</source>
            <translation>Garder ces couleurs ?</translation>
        </message>
        <message>
            <source>&amp;Keep</source>
            <translation>&amp;Garder</translation>
        </message>
        <message>
            <source>&amp;Go back</source>
            <translation>&amp;Rétablir</translation>
        </message>
        <message>
            <source>The screens are hard to read now. They go back by themselves in %d s.</source>
            <translation>Les écrans sont maintenant difficiles à lire. Les couleurs précédentes seront rétablies dans %d s.</translation>
        </message>
        <message>
            <source> %</source>
            <translation> %</translation>
        </message>
        <message>
            <source>Close anyway</source>
            <translation>Fermer quand même</translation>
        </message>
        <message>
            <source>Nocturo effects</source>
            <translation>Effets Nocturo</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message>
            <source>Save Effect</source>
            <translation>Enregistrer l’effet</translation>
        </message>
        <message>
            <source>&amp;Hide extension</source>
            <translation>&amp;Masquer l’extension</translation>
        </message>
        <message>
            <source>Saving failed</source>
            <translation>Échec de l’enregistrement</translation>
        </message>
        <message>
            <source>Could not save settings at this location.</source>
            <translation>Impossible d’enregistrer les réglages à cet emplacement.</translation>
        </message>
        <message>
            <source>Open Effect</source>
            <translation>Ouvrir un effet</translation>
        </message>
        <message>
            <source>Opening failed</source>
            <translation>Échec de l’ouverture</translation>
        </message>
        <message>
            <source>“%@” is not an effect document.</source>
            <translation>« %@ » n’est pas un document d’effet.</translation>
        </message>
    </context>
    <context>
        <name>ZQFluxCheck</name>
        <message>
            <source>%@ is present on this computer.</source>
            <translation>%@ est présent sur cet ordinateur.</translation>
        </message>
        <message>
            <source>[%1$@ installed, might interfer %2$@.]</source>
            <translation>%2$@ modifie aussi les couleurs des écrans et peut donc interférer avec %1$@ : chacun des deux programmes peut annuler ce que fait l’autre. Il vaut mieux n’en utiliser qu’un à la fois.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Continuer</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>Quitter</translation>
        </message>
    </context>
</TS>
