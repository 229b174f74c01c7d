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
            <source>Switches the effect on or off (Ctrl+E)</source>
            <translation>Active ou désactive l’effet (Ctrl+E)</translation>
        </message>
        <message>
            <source>Effect</source>
            <translation>Effet</translation>
        </message>
        <message>
            <source>Nocturo can stay at hand as an icon in the panel's tray.</source>
            <translation>Nocturo peut rester à portée de main, en icône dans la zone de notification.</translation>
        </message>
        <message>
            <source>The icon then switches the effect and leads back to this window</source>
            <translation>L’icône commute alors l’effet et ramène à cette fenêtre</translation>
        </message>
        <message>
            <source>Stay in the tray</source>
            <translation>Rester en icône</translation>
        </message>
        <message>
            <source>The page "Switching" has this choice, too</source>
            <translation>La page « Activation » offre aussi ce choix</translation>
        </message>
        <message>
            <source>Not now</source>
            <translation>Pas maintenant</translation>
        </message>
        <message>
            <source>Looks and effects</source>
            <translation>Apparences et effets</translation>
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
            <translation>Sure&amp;xposer</translation>
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
            <source>&amp;Temperature:</source>
            <translation>Te&amp;mpérature :</translation>
        </message>
        <message>
            <source>The color filter as warm or cool light, from candles to the sky; empty while it is another color</source>
            <translation>Le filtre de couleur comme lumière chaude ou froide, de la bougie au ciel ; vide tant que c’est une autre couleur</translation>
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
            <source>Vivi&amp;dness:</source>
            <translation>Viv&amp;acité :</translation>
        </message>
        <message>
            <source>How much of the other colors the filter takes away</source>
            <translation>La part des autres couleurs que le filtre retire</translation>
        </message>
        <message>
            <source>Di&amp;m or lighten</source>
            <translation>Assom&amp;brir ou éclaircir</translation>
        </message>
        <message>
            <source>Moves every color toward black or toward white</source>
            <translation>Rapproche toutes les couleurs du noir ou du blanc</translation>
        </message>
        <message>
            <source>Level</source>
            <translation>Niveau</translation>
        </message>
        <message>
            <source>Negative values make the screen darker, positive ones lighter</source>
            <translation>Les valeurs négatives assombrissent l’écran, les positives l’éclaircissent</translation>
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
            <source>Sho&amp;w:</source>
            <translation>Affic&amp;her :</translation>
        </message>
        <message>
            <source>The screen whose curves are shown</source>
            <translation>L’écran dont les courbes sont affichées</translation>
        </message>
        <message>
            <source>Cu&amp;rves</source>
            <translation>Cou&amp;rbes</translation>
        </message>
        <message>
            <source>Shows beside the picture what becomes of each color channel</source>
            <translation>Montre à côté de l’image ce que devient chaque canal de couleur</translation>
        </message>
        <message>
            <source>Its loo&amp;k:</source>
            <translation>Son a&amp;pparence :</translation>
        </message>
        <message>
            <source>What this screen shows in place of the effects of all, also when it comes back</source>
            <translation>Ce que cet écran montre à la place des effets de tous, aussi quand il revient</translation>
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
            <translation>Activer a&amp;u démarrage de Nocturo</translation>
        </message>
        <message>
            <source>Nocturo is then there after every login</source>
            <translation>Nocturo est alors là après chaque ouverture de session</translation>
        </message>
        <message>
            <source>Start &amp;with the session</source>
            <translation>Démarrer a&amp;vec la session</translation>
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
            <source>Works in every program, when you let go of the key</source>
            <translation>Fonctionne dans tous les programmes, quand vous relâchez la touche</translation>
        </message>
        <message>
            <source>Switch with the hot &amp;key</source>
            <translation>Activer ou désactiver avec &amp;le raccourci</translation>
        </message>
        <message>
            <source>Leaves Nocturo without a hot key</source>
            <translation>Laisse Nocturo sans raccourci</translation>
        </message>
        <message>
            <source>Clear the hot key</source>
            <translation>Effacer le raccourci</translation>
        </message>
        <message>
            <source>Fa&amp;de:</source>
            <translation>Fo&amp;ndu :</translation>
        </message>
        <message>
            <source>How long the colors take to change when the effect is switched</source>
            <translation>Durée du changement des couleurs quand l'effet est activé ou désactivé</translation>
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
            <source>Schedule</source>
            <translation>Programme</translation>
        </message>
        <message>
            <source>Rules</source>
            <translation>Règles</translation>
        </message>
        <message>
            <source>Ope&amp;n...</source>
            <translation>&amp;Ouvrir…</translation>
        </message>
        <message>
            <source>Take the effects from a document</source>
            <translation>Reprendre les effets d’un document</translation>
        </message>
        <message>
            <source>&amp;Save...</source>
            <translation>Enre&amp;gistrer…</translation>
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
            <source>Pause</source>
            <translation>Pause</translation>
        </message>
        <message>
            <source>30 minutes</source>
            <translation>30 minutes</translation>
        </message>
        <message>
            <source>1 hour</source>
            <translation>1 heure</translation>
        </message>
        <message>
            <source>Until tomorrow</source>
            <translation>Jusqu’à demain</translation>
        </message>
        <message>
            <source>&amp;Deactivate Effect</source>
            <translation>&amp;Désactiver l’effet</translation>
        </message>
        <message>
            <source>&amp;Activate Effect</source>
            <translation>&amp;Activer l’effet</translation>
        </message>
        <message>
            <source>Deactivate Effect</source>
            <translation>Désactiver l’effet</translation>
        </message>
        <message>
            <source>Activate Effect</source>
            <translation>Activer l’effet</translation>
        </message>
        <message>
            <source>Open Recent</source>
            <translation>Documents récents</translation>
        </message>
        <message>
            <source>Invert</source>
            <translation>Inverser</translation>
        </message>
        <message>
            <source>Overexpose</source>
            <translation>Surexposer</translation>
        </message>
        <message>
            <source>Dim or lighten</source>
            <translation>Assombrir ou éclaircir</translation>
        </message>
        <message>
            <source>Color filter</source>
            <translation>Filtre coloré</translation>
        </message>
        <message>
            <source>HDTV range</source>
            <translation>Plage HDTV</translation>
        </message>
        <message>
            <source>Effects</source>
            <translation>Effets</translation>
        </message>
        <message>
            <source>and %d more</source>
            <translation>et %d autres</translation>
        </message>
        <message>
            <source>Looks</source>
            <translation>Apparences</translation>
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
            <source>%@, not connected</source>
            <translation>%@, non connecté</translation>
        </message>
        <message>
            <source>Lighten %@</source>
            <translation>Éclaircir %@</translation>
        </message>
        <message>
            <source>Dim %@</source>
            <translation>Assombrir %@</translation>
        </message>
        <message>
            <source>Color filter %1$@° %2$@ %%</source>
            <translation>Filtre de couleur %1$@° %2$@ %%</translation>
        </message>
        <message>
            <source>all screens</source>
            <translation>tous les écrans</translation>
        </message>
        <message>
            <source>screens that are not connected</source>
            <translation>des écrans qui ne sont pas connectés</translation>
        </message>
        <message>
            <source>On, but no effect is chosen</source>
            <translation>Activé, mais aucun effet n’est choisi</translation>
        </message>
        <message>
            <source>On: %1$@ on %2$@</source>
            <translation>Activé : %1$@ sur %2$@</translation>
        </message>
        <message>
            <source>%1$@, but not on %2$@</source>
            <translation>%1$@, mais pas sur %2$@</translation>
        </message>
        <message>
            <source>Paused while %@ runs</source>
            <translation>En pause tant que %@ s’exécute</translation>
        </message>
        <message>
            <source>Paused until you go on</source>
            <translation>En pause jusqu’à ce que vous repreniez</translation>
        </message>
        <message>
            <source>Paused until %@</source>
            <translation>En pause jusqu’à %@</translation>
        </message>
        <message>
            <source>%@; by hand</source>
            <translation>%@ ; à la main</translation>
        </message>
        <message>
            <source>%1$@; by hand until %2$@ or a rule holds</source>
            <translation>%1$@ ; à la main jusqu’à %2$@ ou jusqu’à ce qu’une règle s’applique</translation>
        </message>
        <message>
            <source>%1$@; by hand until %2$@</source>
            <translation>%1$@ ; à la main jusqu’à %2$@</translation>
        </message>
        <message>
            <source>%1$@; by the rule "%2$@"</source>
            <translation>%1$@ ; selon la règle « %2$@ »</translation>
        </message>
        <message>
            <source>%@; by the schedule</source>
            <translation>%@ ; selon le programme</translation>
        </message>
        <message>
            <source>%1$@; by the schedule until %2$@</source>
            <translation>%1$@ ; selon le programme jusqu’à %2$@</translation>
        </message>
        <message>
            <source>%@, its own look</source>
            <translation>%@, son apparence propre</translation>
        </message>
        <message>
            <source>Off</source>
            <translation>Désactivé</translation>
        </message>
        <message>
            <source>On</source>
            <translation>Activé</translation>
        </message>
        <message>
            <source>%1$@. %2$@: %3$@</source>
            <translation>%1$@. %2$@ : %3$@</translation>
        </message>
        <message>
            <source>Off. Choose effects, then switch on</source>
            <translation>Désactivé. Choisissez des effets, puis activez</translation>
        </message>
        <message>
            <source>Off. When on: %@</source>
            <translation>Désactivé. Une fois activé : %@</translation>
        </message>
        <message>
            <source>%@ %%</source>
            <translation>%@ %%</translation>
        </message>
        <message>
            <source>Paused: screen saver</source>
            <translation>En pause : écran de veille</translation>
        </message>
        <message>
            <source>Nobody knows when that is: "%@".</source>
            <translation>Personne ne sait quand c’est : « %@ ».</translation>
        </message>
        <message>
            <source>There is no look "%@".</source>
            <translation>L’apparence « %@ » n’existe pas.</translation>
        </message>
        <message>
            <source>The time zone has no place for the sun; set one with: nocturoctl set SchedulePlace "52.5 13.4"</source>
            <translation>Le fuseau horaire n’a pas de lieu pour le soleil ; indiquez-en un avec : nocturoctl set SchedulePlace "52.5 13.4"</translation>
        </message>
        <message>
            <source>"%@" is no length of a pause, such as 30m, 2h or 1h30m, up to 366d.</source>
            <translation>« %@ » n’est pas une durée de pause, comme 30m, 2h ou 1h30m, jusqu’à 366d.</translation>
        </message>
        <message>
            <source>"%@" is no time to pause for, such as 30m, 2h, until 18:00 or until sunset.</source>
            <translation>« %@ » n’est pas un temps de pause, comme 30m, 2h, until 18:00 ou until sunset.</translation>
        </message>
        <message>
            <source>Nobody could read the screens under the look "%@"; it means off until it is changed.</source>
            <translation>Avec l’apparence « %@ », personne ne pouvait lire les écrans ; elle vaut arrêt jusqu’à ce qu’elle soit modifiée.</translation>
        </message>
        <message>
            <source>This desktop does not tell which window is in front.</source>
            <translation>Ce bureau ne dit pas quelle fenêtre est au premier plan.</translation>
        </message>
        <message>
            <source>There is no look "%@"; the name of a program with spaces stands between quotation marks.</source>
            <translation>L’apparence « %@ » n’existe pas ; le nom d’un programme qui contient des espaces se met entre guillemets.</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ rules at most.</source>
            <translation>« %1$@ » accepte une liste de %2$@ règles au plus.</translation>
        </message>
        <message>
            <source>There is no rule %@.</source>
            <translation>Il n'y a pas de règle %@.</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ points at most.</source>
            <translation>« %1$@ » accepte une liste de %2$@ points au plus.</translation>
        </message>
        <message>
            <source>The schedule has no point %@.</source>
            <translation>Le programme n’a pas de point %@.</translation>
        </message>
        <message>
            <source>There is no setting "%@".</source>
            <translation>Le réglage « %@ » n’existe pas.</translation>
        </message>
        <message>
            <source>"%@" is no absolute path.</source>
            <translation>« %@ » n’est pas un chemin absolu.</translation>
        </message>
        <message>
            <source>No setting takes a value of this type.</source>
            <translation>Aucun réglage n’accepte une valeur de ce type.</translation>
        </message>
        <message>
            <source>The display server keeps %@ to itself, so it cannot be the hot key.</source>
            <translation>Le serveur d’affichage se réserve %@, qui ne peut donc pas être le raccourci clavier.</translation>
        </message>
        <message>
            <source>"%@" is not an effect document.</source>
            <translation>« %@ » n’est pas un document d’effet.</translation>
        </message>
        <message>
            <source>Could not save settings at "%@": %@.</source>
            <translation>Impossible d’enregistrer les réglages dans « %@ » : %@.</translation>
        </message>
        <message>
            <source>A temperature is from 1000 to 25000 K.</source>
            <translation>Une température va de 1000 à 25000 K.</translation>
        </message>
        <message>
            <source>The color filter has a hue and a vividness that are no temperature.</source>
            <translation>La teinte et la vivacité du filtre coloré ne correspondent à aucune température.</translation>
        </message>
        <message>
            <source>"%@" is no setting that goes in steps.</source>
            <translation>« %@ » n’est pas un réglage qui va par pas.</translation>
        </message>
        <message>
            <source>One display has to stay, as a choice of none means all; nocturoctl off switches the effect off.</source>
            <translation>Il doit rester un écran, car n’en choisir aucun signifie tous ; nocturoctl off désactive l’effet.</translation>
        </message>
        <message>
            <source>There is no display with the identifier %d.</source>
            <translation>Aucun écran n’a l’identifiant %d.</translation>
        </message>
        <message>
            <source>These are not effect documents: %@</source>
            <translation>Ce ne sont pas des documents d’effet : %@</translation>
        </message>
        <message>
            <source>Nocturo waits for the answer to the question that it shows.</source>
            <translation>Nocturo attend la réponse à la question qu’il affiche.</translation>
        </message>
        <message>
            <source>No more than %d documents can be opened at once.</source>
            <translation>Il n’est pas possible d’ouvrir plus de %d documents à la fois.</translation>
        </message>
        <message>
            <source>Nocturo answered something that this version does not understand.</source>
            <translation>Nocturo a répondu quelque chose que cette version ne comprend pas.</translation>
        </message>
        <message>
            <source>Nocturo is not running.</source>
            <translation>Nocturo n'est pas lancé.</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>En pause</translation>
        </message>
        <message>
            <source>Nocturo is not running; start it with: nocturo &amp;</source>
            <translation>Nocturo n’est pas en cours d’exécution ; lancez-le avec : nocturo &amp;</translation>
        </message>
        <message>
            <source>The session bus failed: %@.</source>
            <translation>Le bus de session a échoué : %@.</translation>
        </message>
        <message>
            <source>There is no session bus over which Nocturo could be reached; start it inside a desktop session with: nocturo &amp;</source>
            <translation>Aucun bus de session ne permet de joindre Nocturo ; lancez-le dans une session de bureau avec : nocturo &amp;</translation>
        </message>
        <message>
            <source>The Nocturo that runs does not answer.</source>
            <translation>Le Nocturo en cours d’exécution ne répond pas.</translation>
        </message>
        <message>
            <source>Nocturo did not do it: %@</source>
            <translation>Nocturo ne l’a pas fait : %@</translation>
        </message>
        <message>
            <source>There is no setting "%@"; nocturoctl status --all lists them.</source>
            <translation>Le réglage « %@ » n’existe pas ; nocturoctl status --all les énumère.</translation>
        </message>
        <message>
            <source>No hot key is chosen.</source>
            <translation>Aucun raccourci n’est choisi.</translation>
        </message>
        <message>
            <source>%@  (not enabled; nocturoctl hotkey enable)</source>
            <translation>%@  (non activé ; nocturoctl hotkey enable)</translation>
        </message>
        <message>
            <source>%@  (not in force: another program holds it, or the desktop offers no hot keys)</source>
            <translation>%@  (sans effet : un autre programme l’utilise, ou le bureau n’offre pas de raccourcis)</translation>
        </message>
        <message>
            <source>Name a file.</source>
            <translation>Indiquez un fichier.</translation>
        </message>
        <message>
            <source>There is no such file: %@</source>
            <translation>Ce fichier n’existe pas : %@</translation>
        </message>
        <message>
            <source>No display is online.</source>
            <translation>Aucun écran n’est connecté.</translation>
        </message>
        <message>
            <source>The file "%@" cannot be written.</source>
            <translation>Impossible d’écrire le fichier « %@ ».</translation>
        </message>
        <message>
            <source>Switch the effect on</source>
            <translation>Activer l’effet</translation>
        </message>
        <message>
            <source>--fade has it come little by little, in up to 5 seconds.</source>
            <translation>Avec --fade, il vient peu à peu, en 5 secondes au plus.</translation>
        </message>
        <message>
            <source>Switch the effect off</source>
            <translation>Désactiver l’effet</translation>
        </message>
        <message>
            <source>Every display gets its own colors back.</source>
            <translation>Chaque écran retrouve ses propres couleurs.</translation>
        </message>
        <message>
            <source>Switch the effect on or off</source>
            <translation>Activer ou désactiver l’effet</translation>
        </message>
        <message>
            <source>Bind this to a key. --fade has it come and go little by little, in up to 5 seconds.</source>
            <translation>À lier à une touche. Avec --fade, il vient et s’en va peu à peu, en 5 secondes au plus.</translation>
        </message>
        <message>
            <source>Switch the effect off for a time</source>
            <translation>Désactiver l’effet pour un temps</translation>
        </message>
        <message>
            <source>For so long, such as 30m, 2h or 1h30m; until 18:00, sunrise, tomorrow,
which is six in the morning, or next, the schedule's next point; while a command
runs; or until you switch the effect or say cancel.</source>
            <translation>Pendant cette durée, comme 30m, 2h ou 1h30m ; until 18:00, sunrise (le lever du soleil),
tomorrow, soit six heures du matin, ou next, le prochain point du programme ; while, tant
qu’une commande tourne ; ou jusqu’à une bascule ou cancel.</translation>
        </message>
        <message>
            <source>Show or change what happens by the clock and the sun</source>
            <translation>Afficher ou changer ce qui se fait selon l’heure et le soleil</translation>
        </message>
        <message>
            <source>A POINT is a time and a look or off: 07:00 off, sunset-00:30 Warm evening. Instead of a
time of day it may have dawn, sunrise, sunset or dusk. list and next take --json.</source>
            <translation>POINT est une heure et une apparence ou off : 07:00 off, sunset-00:30 Warm evening. Au lieu d’une
heure il peut avoir dawn, sunrise, sunset ou dusk. list et next acceptent --json.</translation>
        </message>
        <message>
            <source>Show or change what happens while programs are in front</source>
            <translation>Afficher ou changer ce qui se passe quand des programmes sont au premier plan</translation>
        </message>
        <message>
            <source>A RULE is fullscreen, program NAME or game, and a look or off: fullscreen off,
program mpv Warm evening. The first one that holds for a display counts. list takes
--json.</source>
            <translation>Une RULE est fullscreen, program NAME ou game, et une apparence ou off : fullscreen off,
program mpv Warm evening. La première qui vaut pour un écran compte. list accepte
--json.</translation>
        </message>
        <message>
            <source>Show the state of everything</source>
            <translation>Afficher l’état de tout</translation>
        </message>
        <message>
            <source>With --all, every setting as well; with --json, one object for programs; with --bar,
a line for a bar: waybar, polybar or i3status-rust. --follow prints another line at
each change, whether Nocturo runs or comes later.</source>
            <translation>Avec --all, tous les réglages aussi ; avec --json, un objet pour les programmes ; avec
--bar, une ligne pour une barre : waybar, polybar ou i3status-rust. --follow en affiche
une autre à chaque changement, que Nocturo soit lancé ou vienne plus tard.</translation>
        </message>
        <message>
            <source>List or choose the effects</source>
            <translation>Énumérer ou choisir les effets</translation>
        </message>
        <message>
            <source>NAME is invert, overexposure, dim, color-filter or hdtv-luminance, or a class
name. add, remove and toggle change the selection, only replaces it.</source>
            <translation>NAME est invert, overexposure, dim, color-filter ou hdtv-luminance, ou un nom de
classe. add, remove et toggle modifient le choix, only le remplace.</translation>
        </message>
        <message>
            <source>Show the dim level, dim or lighten</source>
            <translation>Afficher le niveau, assombrir ou éclaircir</translation>
        </message>
        <message>
            <source>N% makes the picture darker by so much than it is by itself. +N% and -N% are steps: they
make it lighter and darker than it is now, and print what it is then. =LEVEL% is what
the window shows, from =-100% (black) over =0% to =100% (white).</source>
            <translation>N% assombrit l'image d'autant par rapport à ce qu'elle est d'elle-même. +N% et -N% sont
des pas : ils l'éclaircissent et l'assombrissent par rapport à maintenant, et affichent
le résultat. =NIVEAU% est ce que montre la fenêtre, de =-100% (noir) par =0% à =100% (blanc).</translation>
        </message>
        <message>
            <source>Show or choose hue and vividness of the color filter</source>
            <translation>Afficher ou choisir la teinte et la vivacité du filtre coloré</translation>
        </message>
        <message>
            <source>HUE is in degrees: 0 red, 25 orange, 120 green, 240 blue. +N and -N go so far from
what is there.</source>
            <translation>HUE est en degrés : 0 rouge, 25 orange, 120 vert, 240 bleu. +N et -N partent de ce
qui est là.</translation>
        </message>
        <message>
            <source>Show or choose a color temperature</source>
            <translation>Afficher ou choisir une température de couleur</translation>
        </message>
        <message>
            <source>From 1000 (candle) over 6500 (neutral) to 25000 (blue sky), as hue and vividness of the
color filter, which is chosen. +N and -N go so far from the one in force.</source>
            <translation>De 1000 (bougie) à 25000 (ciel bleu) en passant par 6500 (neutre), comme teinte et
vivacité du filtre coloré, qui est choisi. +N et -N partent de celle en vigueur.</translation>
        </message>
        <message>
            <source>Show, choose or keep a combination of effects</source>
            <translation>Afficher, choisir ou garder une combinaison d’effets</translation>
        </message>
        <message>
            <source>list [--json]      all of them, those that come with Nocturo and your own
next, previous     the one after or before the one in force
back               what the last look replaced
save NAME          keep the effects as a look of your own
rename NAME NEW, delete NAME, move NAME PLACE</source>
            <translation>list [--json]      toutes, celles de Nocturo et les vôtres
next, previous     celle qui suit ou précède celle en vigueur
back               ce que la dernière apparence a remplacé
save NAME          garder les effets comme apparence à vous
rename NAME NEW, delete NAME, move NAME PLACE</translation>
        </message>
        <message>
            <source>Show a setting</source>
            <translation>Afficher un réglage</translation>
        </message>
        <message>
            <source>nocturoctl status --all lists the keys.</source>
            <translation>nocturoctl status --all énumère les clés.</translation>
        </message>
        <message>
            <source>Change a setting</source>
            <translation>Modifier un réglage</translation>
        </message>
        <message>
            <source>VALUE is true or false, a number, or a list with commas, as the setting takes it.
For example: nocturoctl set NDDimEffectLevel -30%. Numbers beyond the range and displays
that are not there are refused without --force.</source>
            <translation>VALUE est true ou false, un nombre ou une liste à virgules, selon le réglage.
Par exemple : nocturoctl set NDDimEffectLevel -30%. Les nombres hors de la plage et les
écrans absents sont refusés sans --force.</translation>
        </message>
        <message>
            <source>Change a number by so much</source>
            <translation>Changer un nombre d’autant</translation>
        </message>
        <message>
            <source>As far as its range goes. For example: nocturoctl step NDDimEffectLevel -5%</source>
            <translation>Aussi loin que va sa plage. Par exemple : nocturoctl step NDDimEffectLevel -5%</translation>
        </message>
        <message>
            <source>Give a setting its default value again</source>
            <translation>Rendre à un réglage sa valeur par défaut</translation>
        </message>
        <message>
            <source>List or choose the affected displays</source>
            <translation>Énumérer ou choisir les écrans concernés</translation>
        </message>
        <message>
            <source>DISPLAY is its number in the list, its name or its identifier. only chooses these
alone; toggle puts each into the set of affected displays or takes it out. An
empty set means all displays, which is also what all chooses. look gives a display a
look of its own; - takes it away.</source>
            <translation>DISPLAY est son numéro dans la liste, son nom ou son identifiant. only ne choisit que
ceux-là ; toggle met chacun dans l’ensemble des écrans concernés ou l’en retire. Un
ensemble vide signifie tous les écrans, ce que choisit aussi all. look donne
à un écran une apparence à lui ; - la retire.</translation>
        </message>
        <message>
            <source>Show or choose the global hot key</source>
            <translation>Afficher ou choisir le raccourci global</translation>
        </message>
        <message>
            <source>KEYS is one key and any of ctrl, alt (or option), shift and super (or command),
such as 'ctrl+super+F5' or 'alt+shift+k'. The hot key toggles the effect while it
is enabled. Keys are what they type, and f1 to f20, left, right, up, down, home,
end, pageup, pagedown, insert, delete, backspace, tab, space, return, escape,
menu, volumeup, volumedown, mute, eisu, kana, keypad0 to keypad9, keypadplus,
keypadminus, keypadmultiply, keypaddivide, keypaddecimal, keypadcomma,
keypadequals, keypadenter and keypadclear.</source>
            <translation>KEYS est une touche avec n’importe lesquelles de ctrl, alt (ou option), shift et super (ou
command), comme 'ctrl+super+F5' ou 'alt+shift+k'. Le raccourci bascule l’effet tant qu’il est
activé. Les touches sont ce qu’elles tapent, et f1 à f20, left, right, up, down, home,
end, pageup, pagedown, insert, delete, backspace, tab, space, return, escape,
menu, volumeup, volumedown, mute, eisu, kana, keypad0 à keypad9, keypadplus,
keypadminus, keypadmultiply, keypaddivide, keypaddecimal, keypadcomma,
keypadequals, keypadenter et keypadclear.</translation>
        </message>
        <message>
            <source>Take the effects from a document</source>
            <translation>Reprendre les effets d’un document</translation>
        </message>
        <message>
            <source>Save the effects as a document</source>
            <translation>Enregistrer les effets dans un document</translation>
        </message>
        <message>
            <source>Draw what the effects do</source>
            <translation>Dessiner ce que font les effets</translation>
        </message>
        <message>
            <source>The curves of a display, of the main one unless told otherwise, and a scene seen
through them, as a PNG picture. N is its number, name or identifier.</source>
            <translation>Les courbes d’un écran, l’écran principal sauf indication contraire, et une scène
vue à travers elles, en image PNG. N est son numéro, son nom ou son identifiant.</translation>
        </message>
        <message>
            <source>Show the preference window</source>
            <translation>Afficher la fenêtre des préférences</translation>
        </message>
        <message>
            <source>Show the about box</source>
            <translation>Afficher la fenêtre À propos</translation>
        </message>
        <message>
            <source>Print every change as it happens</source>
            <translation>Écrire chaque changement dès qu’il se produit</translation>
        </message>
        <message>
            <source>One JSON object a line: first the whole state, then what changed. Ends when Nocturo
does.</source>
            <translation>Un objet JSON par ligne : d'abord tout l'état, puis ce qui a changé. Se termine avec
Nocturo.</translation>
        </message>
        <message>
            <source>Give every display its own colors back</source>
            <translation>Rendre à chaque écran ses propres couleurs</translation>
        </message>
        <message>
            <source>Whether Nocturo runs, answers or was killed, and without a session bus as well. Where
nothing is known of a display's own colors it gets plain ones.</source>
            <translation>Que Nocturo tourne, réponde ou ait été tué, et même sans bus de session. Un écran
dont on ne connaît pas les couleurs propres reçoit des couleurs neutres.</translation>
        </message>
        <message>
            <source>Give the displays back and end Nocturo</source>
            <translation>Rendre les écrans et quitter Nocturo</translation>
        </message>
        <message>
            <source>%@  (the color filter is not chosen)</source>
            <translation>%@  (le filtre coloré n’est pas choisi)</translation>
        </message>
        <message>
            <source>"%1$@" takes a number from %2$@ to %3$@.</source>
            <translation>« %1$@ » attend un nombre de %2$@ à %3$@.</translation>
        </message>
        <message>
            <source>%@  (dim is not chosen)</source>
            <translation>%@  (assombrir n’est pas choisi)</translation>
        </message>
        <message>
            <source>Nocturo has ended.</source>
            <translation>Nocturo s’est terminé.</translation>
        </message>
        <message>
            <source>nocturoctl %@ --help tells more.</source>
            <translation>nocturoctl %@ --help en dit plus.</translation>
        </message>
        <message>
            <source>Usage: %@</source>
            <translation>Utilisation : %@</translation>
        </message>
        <message>
            <source>Drives the Nocturo that runs in this session.</source>
            <translation>Commande le Nocturo qui tourne dans cette session.</translation>
        </message>
        <message>
            <source>With --keep, colors that leave every screen hard to read stay. Without it they go back
after ten seconds, unless somebody keeps them.</source>
            <translation>Avec --keep, les couleurs qui rendent tous les écrans difficiles à lire restent.
Sinon elles reviennent en arrière après dix secondes, à moins d'être conservées.</translation>
        </message>
        <message>
            <source>Exit status: 0 done, 1 failed, 2 not understood, 3 Nocturo is not running.</source>
            <translation>Code de retour : 0 fait, 1 échec, 2 non compris, 3 Nocturo ne tourne pas.</translation>
        </message>
        <message>
            <source>Say what to do; nocturoctl --help lists the verbs.</source>
            <translation>Dites quoi faire ; nocturoctl --help énumère les verbes.</translation>
        </message>
        <message>
            <source>There is no verb "%@"; nocturoctl --help lists them.</source>
            <translation>Le verbe « %@ » n’existe pas ; nocturoctl --help les énumère.</translation>
        </message>
        <message>
            <source>The answer cannot be written: %@.</source>
            <translation>La réponse ne peut pas être écrite : %@.</translation>
        </message>
        <message>
            <source>"%1$@" cannot be started: %2$@.</source>
            <translation>Impossible de démarrer « %1$@ » : %2$@.</translation>
        </message>
        <message>
            <source>no ramp, or another program has it</source>
            <translation>pas de rampe, ou un autre programme la tient</translation>
        </message>
        <message>
            <source>cannot be given a color profile</source>
            <translation>n’accepte pas de profil de couleurs</translation>
        </message>
        <message>
            <source>in HDR mode</source>
            <translation>en mode HDR</translation>
        </message>
        <message>
            <source>refused by the desktop</source>
            <translation>refusé par le bureau</translation>
        </message>
        <message>
            <source>yes</source>
            <translation>oui</translation>
        </message>
        <message>
            <source>no</source>
            <translation>non</translation>
        </message>
        <message>
            <source>(none)</source>
            <translation>(aucun)</translation>
        </message>
        <message>
            <source>%@ (not enabled)</source>
            <translation>%@ (non activé)</translation>
        </message>
        <message>
            <source>%@ (not in force)</source>
            <translation>%@ (sans effet)</translation>
        </message>
        <message>
            <source>Another program</source>
            <translation>Un autre programme</translation>
        </message>
        <message>
            <source>%@ changes the colors too: found once since Nocturo was started.</source>
            <translation>%@ change aussi les couleurs : constaté une fois depuis le démarrage de Nocturo.</translation>
        </message>
        <message>
            <source>%@ changes the colors too: found %d times since Nocturo was started.</source>
            <translation>%@ change aussi les couleurs : constaté %d fois depuis le démarrage de Nocturo.</translation>
        </message>
        <message>
            <source>look</source>
            <translation>apparence</translation>
        </message>
        <message>
            <source>dim level</source>
            <translation>niveau d’assombrissement</translation>
        </message>
        <message>
            <source>color filter hue</source>
            <translation>teinte du filtre coloré</translation>
        </message>
        <message>
            <source>color filter vividness</source>
            <translation>vivacité du filtre coloré</translation>
        </message>
        <message>
            <source>hot key</source>
            <translation>raccourci clavier</translation>
        </message>
        <message>
            <source>display services</source>
            <translation>source des écrans</translation>
        </message>
        <message>
            <source>Displays</source>
            <translation>Écrans</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>Réglages</translation>
        </message>
        <message>
            <source>no.</source>
            <translation>nº</translation>
        </message>
        <message>
            <source>name</source>
            <translation>nom</translation>
        </message>
        <message>
            <source>identifier</source>
            <translation>identifiant</translation>
        </message>
        <message>
            <source>ramp</source>
            <translation>rampe</translation>
        </message>
        <message>
            <source>applied</source>
            <translation>appliqué</translation>
        </message>
        <message>
            <source>monitor</source>
            <translation>moniteur</translation>
        </message>
        <message>
            <source>none</source>
            <translation>aucune</translation>
        </message>
        <message>
            <source>main</source>
            <translation>principal</translation>
        </message>
        <message>
            <source>not connected</source>
            <translation>non connecté</translation>
        </message>
        <message>
            <source>own</source>
            <translation>à vous</translation>
        </message>
        <message>
            <source>Nocturo has switched its effect off and given the displays back.</source>
            <translation>Nocturo a désactivé son effet et rendu les écrans.</translation>
        </message>
        <message>
            <source>The displays have been given back, but a Nocturo that does not answer still runs and may change them again.</source>
            <translation>Les écrans ont été rendus, mais un Nocturo qui ne répond pas tourne encore et peut les changer de nouveau.</translation>
        </message>
        <message>
            <source>The displays have their own colors back, as they were before Nocturo changed them.</source>
            <translation>Les écrans ont retrouvé leurs propres couleurs, telles qu’avant que Nocturo ne les change.</translation>
        </message>
        <message>
            <source>Nocturo has left no display changed, so nothing was done.</source>
            <translation>Nocturo n’a laissé aucun écran modifié ; rien n’a donc été fait.</translation>
        </message>
        <message>
            <source>The displays have plain colors now, or those of their color profiles.</source>
            <translation>Les écrans ont maintenant des couleurs neutres, ou celles de leurs profils de couleurs.</translation>
        </message>
        <message>
            <source>The desktop does not take the color profiles of the displays back; choose them in its settings.</source>
            <translation>Le bureau ne reprend pas les profils de couleurs des écrans ; choisissez-les dans ses réglages.</translation>
        </message>
        <message>
            <source>%@ does not tell Nocturo of its displays.</source>
            <translation>%@ n’indique pas ses écrans à Nocturo.</translation>
        </message>
        <message>
            <source>There is no X server whose displays could be given back, because DISPLAY is not set.</source>
            <translation>Il n’y a pas de serveur X dont les écrans pourraient être rendus, car DISPLAY n’est pas défini.</translation>
        </message>
        <message>
            <source>The X server %@ does not answer.</source>
            <translation>Le serveur X %@ ne répond pas.</translation>
        </message>
        <message>
            <source>The compositor %@ does not answer.</source>
            <translation>Le compositeur %@ ne répond pas.</translation>
        </message>
        <message>
            <source>%@ is in front</source>
            <translation>%@ est au premier plan</translation>
        </message>
        <message>
            <source>a game is running</source>
            <translation>un jeu est en cours</translation>
        </message>
        <message>
            <source>a window fills %@</source>
            <translation>une fenêtre remplit %@</translation>
        </message>
        <message>
            <source>The rules are not in use; nocturoctl rules on changes that.</source>
            <translation>Les règles ne sont pas utilisées ; nocturoctl rules on change cela.</translation>
        </message>
        <message>
            <source>The schedule is not in use; nocturoctl schedule on changes that.</source>
            <translation>Le programme n’est pas utilisé ; nocturoctl schedule on y remédie.</translation>
        </message>
        <message>
            <source>Nothing is scheduled.</source>
            <translation>Rien n’est prévu.</translation>
        </message>
        <message>
            <source>There is no display "%@"; nocturoctl screens lists their numbers, names and identifiers.</source>
            <translation>L’écran « %@ » n’existe pas ; nocturoctl screens donne leurs numéros, noms et identifiants.</translation>
        </message>
        <message>
            <source>There is no effect "%@"; the effects are %@.</source>
            <translation>L’effet « %@ » n’existe pas ; les effets sont %@.</translation>
        </message>
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
            <source>Nocturo User Guide</source>
            <translation>Guide de l'utilisateur de Nocturo</translation>
        </message>
        <message>
            <source>%@ is held by another program. Choose another hot key.</source>
            <translation>%@ est pris par un autre programme. Choisissez un autre raccourci.</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>Copier</translation>
        </message>
        <message>
            <source>Change...</source>
            <translation>Modifier...</translation>
        </message>
        <message>
            <source>Ask</source>
            <translation>Demander</translation>
        </message>
        <message>
            <source>Hot key</source>
            <translation>Raccourci clavier</translation>
        </message>
        <message>
            <source>Press the new hot key, with Ctrl, Alt or Super, or Escape to leave it as it was.</source>
            <translation>Appuyez sur le nouveau raccourci, avec Ctrl, Alt ou Super, ou sur Échap pour le laisser tel quel.</translation>
        </message>
        <message>
            <source>Click or press Space to record another shortcut.</source>
            <translation>Cliquez ou appuyez sur Espace pour enregistrer un autre raccourci.</translation>
        </message>
        <message>
            <source>With Ctrl, Alt or Super</source>
            <translation>Avec Ctrl, Alt ou Super</translation>
        </message>
        <message>
            <source>Press keys, Esc cancels</source>
            <translation>Appuyez, Échap annule</translation>
        </message>
        <message>
            <source>Save as a look...</source>
            <translation>Garder l’apparence...</translation>
        </message>
        <message>
            <source>Keeps the effects under a name of your own</source>
            <translation>Garde les effets sous un nom de votre choix</translation>
        </message>
        <message>
            <source>Change</source>
            <translation>Modifier</translation>
        </message>
        <message>
            <source>Renames, moves or deletes the look that is marked</source>
            <translation>Renomme, déplace ou supprime l’apparence marquée</translation>
        </message>
        <message>
            <source>A click puts a look on the screens, another one takes it away</source>
            <translation>Un clic applique une apparence aux écrans, un autre la retire</translation>
        </message>
        <message>
            <source>Rename...</source>
            <translation>Renommer...</translation>
        </message>
        <message>
            <source>Move to the front</source>
            <translation>Vers le début</translation>
        </message>
        <message>
            <source>Move to the back</source>
            <translation>Vers la fin</translation>
        </message>
        <message>
            <source>Delete...</source>
            <translation>Supprimer...</translation>
        </message>
        <message>
            <source>Save as a look</source>
            <translation>Garder l’apparence</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <source>Rename Look</source>
            <translation>Renommer l’apparence</translation>
        </message>
        <message>
            <source>Rename</source>
            <translation>Renommer</translation>
        </message>
        <message>
            <source>Delete the look "%@"?</source>
            <translation>Supprimer l’apparence « %@ » ?</translation>
        </message>
        <message>
            <source>It will be missed by: %@.</source>
            <translation>Il manquera à : %@.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Supprimer</translation>
        </message>
        <message>
            <source>Name:</source>
            <translation>Nom :</translation>
        </message>
        <message>
            <source>There is a look "%@" already.</source>
            <translation>L’apparence « %@ » existe déjà.</translation>
        </message>
        <message>
            <source>Replace</source>
            <translation>Remplacer</translation>
        </message>
        <message>
            <source>This desktop shows no tray at the moment; Nocturo can be reached through the applications menu.</source>
            <translation>Ce bureau n’affiche pas de zone de notification pour le moment ; Nocturo reste accessible par le menu des applications.</translation>
        </message>
        <message>
            <source>“%@” is not an effect document.</source>
            <translation>« %@ » n’est pas un document d’effet.</translation>
        </message>
        <message>
            <source>Opening failed</source>
            <translation>Échec de l’ouverture</translation>
        </message>
        <message>
            <source>&amp;Effect</source>
            <translation>&amp;Effet</translation>
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
            <source>&amp;Clear Menu</source>
            <translation>&amp;Vider le menu</translation>
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
            <source>&amp;Help</source>
            <translation>Ai&amp;de</translation>
        </message>
        <message>
            <source>User &amp;Guide</source>
            <translation>&amp;Guide de l'utilisateur</translation>
        </message>
        <message>
            <source>&amp;About Nocturo</source>
            <translation>À &amp;propos de Nocturo</translation>
        </message>
        <message>
            <source>red</source>
            <translation>rouge</translation>
        </message>
        <message>
            <source>orange</source>
            <translation>orange</translation>
        </message>
        <message>
            <source>yellow</source>
            <translation>jaune</translation>
        </message>
        <message>
            <source>lime</source>
            <translation>citron vert</translation>
        </message>
        <message>
            <source>green</source>
            <translation>vert</translation>
        </message>
        <message>
            <source>sea green</source>
            <translation>vert marin</translation>
        </message>
        <message>
            <source>cyan</source>
            <translation>cyan</translation>
        </message>
        <message>
            <source>azure</source>
            <translation>azur</translation>
        </message>
        <message>
            <source>blue</source>
            <translation>bleu</translation>
        </message>
        <message>
            <source>violet</source>
            <translation>violet</translation>
        </message>
        <message>
            <source>magenta</source>
            <translation>magenta</translation>
        </message>
        <message>
            <source>pink</source>
            <translation>rose</translation>
        </message>
        <message>
            <source>candle</source>
            <translation>bougie</translation>
        </message>
        <message>
            <source>tungsten</source>
            <translation>ampoule</translation>
        </message>
        <message>
            <source>sunset</source>
            <translation>coucher du soleil</translation>
        </message>
        <message>
            <source>daylight</source>
            <translation>lumière du jour</translation>
        </message>
        <message>
            <source>The screens are hard to read now. They go back by themselves in %d s.</source>
            <translation>Les écrans sont maintenant difficiles à lire. Les couleurs précédentes seront rétablies dans %d s.</translation>
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
            <source>Close anyway</source>
            <translation>Fermer quand même</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message>
            <source>Nocturo effects</source>
            <translation>Effets Nocturo</translation>
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
            <source>As all screens</source>
            <translation>Comme tous les écrans</translation>
        </message>
        <message>
            <source> %</source>
            <translation> %</translation>
        </message>
        <message>
            <source> s</source>
            <translation> s</translation>
        </message>
        <message>
            <source>at once</source>
            <translation>immédiat</translation>
        </message>
        <message>
            <source>R</source>
            <translation>R</translation>
        </message>
        <message>
            <source>G</source>
            <translation>V</translation>
        </message>
        <message>
            <source>B</source>
            <translation>B</translation>
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
            <source>brightness from %@ to %@</source>
            <translation>luminosité de %@ à %@</translation>
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
            <source>%@ (%@)</source>
            <translation>%@ (%@)</translation>
        </message>
        <message>
            <source>&amp;Choose looks by what is in front</source>
            <translation>&amp;Choisir les apparences selon ce qui est au premier plan</translation>
        </message>
        <message>
            <source>Rules</source>
            <translation>Règles</translation>
        </message>
        <message>
            <source>Of the rules that hold for a screen the first one counts.</source>
            <translation>Parmi les règles qui s’appliquent à un écran, la première l’emporte.</translation>
        </message>
        <message>
            <source>As its windows are called</source>
            <translation>Tel que ses fenêtres le nomment</translation>
        </message>
        <message>
            <source>P&amp;ick a window</source>
            <translation>Cho&amp;isir une fenêtre</translation>
        </message>
        <message>
            <source>The next window that comes to the front tells its program</source>
            <translation>La prochaine fenêtre qui passe au premier plan indique son programme</translation>
        </message>
        <message>
            <source>&amp;When:</source>
            <translation>&amp;Quand :</translation>
        </message>
        <message>
            <source>&amp;Program:</source>
            <translation>&amp;Programme :</translation>
        </message>
        <message>
            <source>&amp;Look:</source>
            <translation>&amp;Apparence :</translation>
        </message>
        <message>
            <source>&amp;Add</source>
            <translation>A&amp;jouter</translation>
        </message>
        <message>
            <source>&amp;Remove</source>
            <translation>Re&amp;tirer</translation>
        </message>
        <message>
            <source>Move the rule up</source>
            <translation>Monter la règle</translation>
        </message>
        <message>
            <source>Move the rule down</source>
            <translation>Descendre la règle</translation>
        </message>
        <message>
            <source>A window fills a screen</source>
            <translation>Une fenêtre remplit un écran</translation>
        </message>
        <message>
            <source>A program is in front</source>
            <translation>Un programme est au premier plan</translation>
        </message>
        <message>
            <source>A game is running</source>
            <translation>Un jeu est en cours</translation>
        </message>
        <message>
            <source>No rule holds now.</source>
            <translation>Aucune règle ne s'applique en ce moment.</translation>
        </message>
        <message>
            <source>Now: %@</source>
            <translation>En ce moment : %@</translation>
        </message>
        <message>
            <source>Now click a window of the program.</source>
            <translation>Cliquez maintenant sur une fenêtre du programme.</translation>
        </message>
        <message>
            <source> min</source>
            <translation> min</translation>
        </message>
        <message>
            <source>&amp;Choose looks by the clock and the sun</source>
            <translation>&amp;Choisir les apparences selon l’heure et le soleil</translation>
        </message>
        <message>
            <source>Pa&amp;use</source>
            <translation>Pa&amp;use</translation>
        </message>
        <message>
            <source>A pause gives the screens their own colors for a while.</source>
            <translation>Une pause rend aux écrans leurs propres couleurs pour un moment.</translation>
        </message>
        <message>
            <source>Resu&amp;me</source>
            <translation>&amp;Reprendre</translation>
        </message>
        <message>
            <source>Latitude and longitude, such as 52.5 13.4; by the time zone where empty</source>
            <translation>Latitude et longitude, par exemple 52.5 13.4 ; vide : selon le fuseau horaire</translation>
        </message>
        <message>
            <source>How long the colors take to change when a point comes</source>
            <translation>Durée du changement des couleurs quand vient un point</translation>
        </message>
        <message>
            <source>&amp;Place of the sun:</source>
            <translation>&amp;Lieu du soleil :</translation>
        </message>
        <message>
            <source>Change o&amp;ver:</source>
            <translation>Tra&amp;nsition :</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Programme</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Heure</translation>
        </message>
        <message>
            <source>Dawn</source>
            <translation>Aube</translation>
        </message>
        <message>
            <source>Sunrise</source>
            <translation>Lever du soleil</translation>
        </message>
        <message>
            <source>Sunset</source>
            <translation>Coucher du soleil</translation>
        </message>
        <message>
            <source>Dusk</source>
            <translation>Crépuscule</translation>
        </message>
        <message>
            <source>Minutes before or after the sun</source>
            <translation>Minutes avant ou après le soleil</translation>
        </message>
        <message>
            <source>Next: %1$@ at %2$@</source>
            <translation>Ensuite : %1$@ à %2$@</translation>
        </message>
        <message>
            <source>Not in use.</source>
            <translation>Non utilisé.</translation>
        </message>
        <message>
            <source>Paused until %1$@, %2$@ h left</source>
            <translation>En pause jusqu’à %1$@, encore %2$@ h</translation>
        </message>
        <message>
            <source>To see what the effects do, start it with --display-services=simulated.</source>
            <translation>Pour voir ce que font les effets, lancez-le avec --display-services=simulated.</translation>
        </message>
        <message>
            <source>%@ offers Nocturo no way to change the colors of displays under Wayland.</source>
            <translation>%@ n’offre à Nocturo aucun moyen de changer les couleurs des écrans sous Wayland.</translation>
        </message>
        <message>
            <source>This desktop</source>
            <translation>Ce bureau</translation>
        </message>
        <message>
            <source>There is no X server to work with, because DISPLAY is not set.</source>
            <translation>Il n’y a pas de serveur X à utiliser, car DISPLAY n’est pas défini.</translation>
        </message>
        <message>
            <source>Another Nocturo drives the displays of the X server %@.</source>
            <translation>Un autre Nocturo commande les écrans du serveur X %@.</translation>
        </message>
        <message>
            <source>Another Nocturo drives the displays of %@.</source>
            <translation>Un autre Nocturo commande les écrans de %@.</translation>
        </message>
        <message>
            <source>Neither GNOME nor Cinnamon is on the session bus.</source>
            <translation>Ni GNOME ni Cinnamon n’est sur le bus de session.</translation>
        </message>
        <message>
            <source>No Wayland compositor answers.</source>
            <translation>Aucun compositeur Wayland ne répond.</translation>
        </message>
        <message>
            <source>Plasma 5 offers Nocturo no way to change the colors of displays under Wayland; choose its X11 session when logging in, or use Plasma 6.</source>
            <translation>Plasma 5 n’offre à Nocturo aucun moyen de modifier les couleurs des écrans sous Wayland ; choisissez sa session X11 à la connexion ou utilisez Plasma 6.</translation>
        </message>
        <message>
            <source>Displays are simulated; their pictures are in %@.</source>
            <translation>Les écrans sont simulés ; leurs images sont dans %@.</translation>
        </message>
        <message>
            <source>The X server %@ is only a guest of a Wayland session and cannot change its colors; displays under Wayland come with a later version.</source>
            <translation>Le serveur X %@ n’est qu’un invité d’une session Wayland et ne peut pas en changer les couleurs ; les écrans sous Wayland viendront dans une version ultérieure.</translation>
        </message>
        <message>
            <source>The X server %@ has no RandR 1.3 or later.</source>
            <translation>Le serveur X %@ n’a pas RandR 1.3 ou plus récent.</translation>
        </message>
        <message>
            <source>The X server %@ cannot be reached.</source>
            <translation>Le serveur X %@ est injoignable.</translation>
        </message>
        <message>
            <source>There are no looks.</source>
            <translation>Il n’y a pas d’apparences.</translation>
        </message>
        <message>
            <source>No look was applied from which one could go back.</source>
            <translation>Aucune apparence n’a été appliquée d’où l’on puisse revenir.</translation>
        </message>
        <message>
            <source>Night reading</source>
            <translation>Lecture de nuit</translation>
        </message>
        <message>
            <source>Warm evening</source>
            <translation>Soirée chaude</translation>
        </message>
        <message>
            <source>Red night vision</source>
            <translation>Vision nocturne rouge</translation>
        </message>
        <message>
            <source>Just dimmer</source>
            <translation>Juste plus sombre</translation>
        </message>
        <message>
            <source>Paper tint</source>
            <translation>Teinte papier</translation>
        </message>
        <message>
            <source>"%@" cannot be the name of a look.</source>
            <translation>« %@ » ne peut pas être le nom d’une apparence.</translation>
        </message>
        <message>
            <source>The look "%@" comes with Nocturo and stays as it is.</source>
            <translation>L’apparence « %@ » est fournie avec Nocturo et reste telle quelle.</translation>
        </message>
        <message>
            <source>This desktop takes hot keys from its own settings. Add a shortcut for this command there:</source>
            <translation>Ce bureau prend les raccourcis dans ses propres réglages. Ajoutez-y un raccourci pour cette commande :</translation>
        </message>
        <message>
            <source>This desktop takes hot keys from its own configuration. Put this line there:</source>
            <translation>Ce bureau prend les raccourcis dans sa propre configuration. Mettez-y cette ligne :</translation>
        </message>
        <message>
            <source>The desktop is asked whether Nocturo may have it.</source>
            <translation>Il est demandé au bureau si Nocturo peut l’avoir.</translation>
        </message>
        <message>
            <source>This desktop has not been asked for it yet.</source>
            <translation>Il n’a pas encore été demandé à ce bureau.</translation>
        </message>
        <message>
            <source>The desktop has refused it.</source>
            <translation>Le bureau l’a refusé.</translation>
        </message>
        <message>
            <source>The desktop has it as %@; its own settings change that.</source>
            <translation>Le bureau l’a enregistré comme %@ ; cela se change dans ses réglages.</translation>
        </message>
        <message>
            <source>A hot key is one key and any of ctrl, alt, shift and super, joined by +, such as ctrl+super+F5; nocturoctl hotkey --help lists the keys.</source>
            <translation>Un raccourci est une touche avec n’importe lesquelles de ctrl, alt, shift et super, jointes par +, comme ctrl+super+F5 ; nocturoctl hotkey --help donne la liste des touches.</translation>
        </message>
        <message>
            <source>No hot key was given.</source>
            <translation>Aucun raccourci n’a été indiqué.</translation>
        </message>
        <message>
            <source>"%@" has a plus sign with nothing before or after it.</source>
            <translation>« %@ » contient un signe plus sans rien avant ou après.</translation>
        </message>
        <message>
            <source>"%@" and "%@" are both keys, but a hot key has only one.</source>
            <translation>« %@ » et « %@ » sont deux touches, mais un raccourci n’en a qu’une.</translation>
        </message>
        <message>
            <source>"%@" has no key besides its modifiers.</source>
            <translation>« %@ » n’a pas de touche hormis les touches de modification.</translation>
        </message>
        <message>
            <source>"%@" is not a key's name, and no key of the current keyboard layout types it.</source>
            <translation>« %@ » n’est pas un nom de touche, et aucune touche de la disposition actuelle ne le tape.</translation>
        </message>
        <message>
            <source>"%@" is not a key's name, and the keyboard layout that could tell which key types it cannot be read.</source>
            <translation>« %@ » n’est pas un nom de touche, et la disposition du clavier qui dirait quelle touche le tape est illisible.</translation>
        </message>
        <message>
            <source>"%@" needs a modifier: only function, arrow and navigation keys can be hot keys alone.</source>
            <translation>« %@ » exige une touche de modification : seules les touches de fonction, fléchées et de navigation peuvent servir seules de raccourci.</translation>
        </message>
        <message>
            <source>Ctrl</source>
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
            <source>Return</source>
            <translation>Entrée</translation>
        </message>
        <message>
            <source>Tab</source>
            <translation>Tab</translation>
        </message>
        <message>
            <source>Space</source>
            <translation>Espace</translation>
        </message>
        <message>
            <source>Backspace</source>
            <translation>Retour arrière</translation>
        </message>
        <message>
            <source>Esc</source>
            <translation>Échap</translation>
        </message>
        <message>
            <source>Volume Up</source>
            <translation>Volume haut</translation>
        </message>
        <message>
            <source>Volume Down</source>
            <translation>Volume bas</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>Muet</translation>
        </message>
        <message>
            <source>Menu</source>
            <translation>Menu</translation>
        </message>
        <message>
            <source>Ins</source>
            <translation>Inser</translation>
        </message>
        <message>
            <source>Home</source>
            <translation>Début</translation>
        </message>
        <message>
            <source>Page Up</source>
            <translation>Page préc.</translation>
        </message>
        <message>
            <source>Del</source>
            <translation>Suppr</translation>
        </message>
        <message>
            <source>End</source>
            <translation>Fin</translation>
        </message>
        <message>
            <source>Page Down</source>
            <translation>Page suiv.</translation>
        </message>
        <message>
            <source>Left</source>
            <translation>Gauche</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>Droite</translation>
        </message>
        <message>
            <source>Down</source>
            <translation>Bas</translation>
        </message>
        <message>
            <source>Up</source>
            <translation>Haut</translation>
        </message>
        <message>
            <source>Activate or Deactivate Effect</source>
            <translation>Activer ou désactiver l’effet</translation>
        </message>
        <message>
            <source>Windows come with the package nocturo-desktop, which is not installed.</source>
            <translation>Les fenêtres sont fournies par le paquet nocturo-desktop, qui n’est pas installé.</translation>
        </message>
        <message>
            <source>Windows cannot be shown: %@.</source>
            <translation>Les fenêtres ne peuvent pas être affichées : %@.</translation>
        </message>
        <message>
            <source>Windows cannot be shown before Nocturo is started again, because another version was installed meanwhile.</source>
            <translation>Les fenêtres ne peuvent être affichées qu’après un redémarrage de Nocturo, car une autre version a été installée entre-temps.</translation>
        </message>
        <message>
            <source>The display server has gone, so Nocturo ends.</source>
            <translation>Le serveur d’affichage a disparu, Nocturo se termine donc.</translation>
        </message>
        <message>
            <source>Nocturo is already running.</source>
            <translation>Nocturo est déjà en cours d’exécution.</translation>
        </message>
        <message>
            <source>The runtime directory cannot be used; set XDG_RUNTIME_DIR to one of yours.</source>
            <translation>Le répertoire d’exécution est inutilisable ; indiquez dans XDG_RUNTIME_DIR un répertoire qui vous appartient.</translation>
        </message>
        <message>
            <source>Nocturo starts switched off, because nocturoctl restore gave the displays back.</source>
            <translation>Nocturo démarre désactivé, car nocturoctl restore a rendu les écrans.</translation>
        </message>
        <message>
            <source>Nocturo starts switched off.</source>
            <translation>Nocturo démarre désactivé.</translation>
        </message>
        <message>
            <source>Changes how whole screens look: inverted, overexposed, dimmed or lightened, in
the HDTV range or through a color filter. Runs until it is told to quit, and
gives every display back then. Drive it with nocturoctl.</source>
            <translation>Change l’aspect d’écrans entiers : inversés, surexposés, assombris ou éclaircis,
dans la plage HDTV ou à travers un filtre coloré. Tourne jusqu’à ce qu’on le quitte
et rend alors à chaque écran ses couleurs. Se commande avec nocturoctl.</translation>
        </message>
        <message>
            <source>Options:</source>
            <translation>Options :</translation>
        </message>
        <message>
            <source>where the displays come from:</source>
            <translation>d’où viennent les écrans :</translation>
        </message>
        <message>
            <source>what this session offers (default)</source>
            <translation>ce qu’offre cette session (par défaut)</translation>
        </message>
        <message>
            <source>an X server</source>
            <translation>un serveur X</translation>
        </message>
        <message>
            <source>a Wayland compositor like sway</source>
            <translation>un compositeur Wayland comme sway</translation>
        </message>
        <message>
            <source>GNOME or Cinnamon</source>
            <translation>GNOME ou Cinnamon</translation>
        </message>
        <message>
            <source>KDE Plasma 6</source>
            <translation>KDE Plasma 6</translation>
        </message>
        <message>
            <source>N displays, 1 to 16 (default 2),</source>
            <translation>N écrans, de 1 à 16 (2 par défaut),</translation>
        </message>
        <message>
            <source>in memory, drawn into pictures</source>
            <translation>en mémoire, dessinés dans des images</translation>
        </message>
        <message>
            <source>start with the effect off</source>
            <translation>démarrer avec l’effet désactivé</translation>
        </message>
        <message>
            <source>start with the session, asking nothing</source>
            <translation>démarrer avec la session, sans rien demander</translation>
        </message>
        <message>
            <source>show this text</source>
            <translation>afficher ce texte</translation>
        </message>
        <message>
            <source>show the version</source>
            <translation>afficher la version</translation>
        </message>
        <message>
            <source>A FILE is an effect document (.nocturo) to open, by the Nocturo that runs if
there is one. Starting Nocturo a second time without one toggles the effect.</source>
            <translation>FILE est un document d’effet (.nocturo) à ouvrir, par le Nocturo en cours
d’exécution s’il y en a un. Relancer Nocturo sans document bascule l’effet.</translation>
        </message>
        <message>
            <source>There is no option "%@"; see nocturo --help.</source>
            <translation>L’option « %@ » n’existe pas ; voir nocturo --help.</translation>
        </message>
        <message>
            <source>--display-services takes %@ or simulated:N with N from 1 to 16.</source>
            <translation>--display-services accepte %@ ou simulated:N avec N de 1 à 16.</translation>
        </message>
        <message>
            <source>Without a session bus the Nocturo that runs cannot be given a document.</source>
            <translation>Sans bus de session, aucun document ne peut être transmis au Nocturo en cours d’exécution.</translation>
        </message>
        <message>
            <source>"%@" is no identifier of a display with a look, such as 71524911 Night reading.</source>
            <translation>« %@ » n’est pas l’identifiant d’un écran suivi d’une apparence, comme 71524911 Night reading.</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ looks at most.</source>
            <translation>« %1$@ » accepte une liste de %2$@ apparences au plus.</translation>
        </message>
        <message>
            <source>"%@" is no rule, such as fullscreen off or program mpv Warm evening.</source>
            <translation>« %@ » n'est pas une règle comme fullscreen off ou program mpv Warm evening.</translation>
        </message>
        <message>
            <source>"%@" is no point of a schedule, such as 07:00 off or sunset-00:30 Warm evening.</source>
            <translation>« %@ » n’est pas un point d’un programme tel que 07:00 off ou sunset-00:30 Warm evening.</translation>
        </message>
        <message>
            <source>It holds until Nocturo quits; the settings cannot be saved to %1$@ (%2$@).</source>
            <translation>Cela vaut jusqu’à la fermeture de Nocturo ; les réglages ne peuvent pas être enregistrés dans %1$@ (%2$@).</translation>
        </message>
        <message>
            <source>the file that is there cannot be read</source>
            <translation>le fichier qui s’y trouve ne peut pas être lu</translation>
        </message>
        <message>
            <source>the selected effects</source>
            <translation>les effets choisis</translation>
        </message>
        <message>
            <source>switch the effect on at every start</source>
            <translation>activer l’effet à chaque démarrage</translation>
        </message>
        <message>
            <source>starting Nocturo again toggles the effect</source>
            <translation>relancer Nocturo bascule l’effet</translation>
        </message>
        <message>
            <source>while on, apply again every 6 seconds</source>
            <translation>tant qu’il est activé, réappliquer toutes les 6 secondes</translation>
        </message>
        <message>
            <source>pause while the screen saver runs</source>
            <translation>suspendre pendant l’économiseur d’écran</translation>
        </message>
        <message>
            <source>toggle with the global hot key</source>
            <translation>basculer avec le raccourci global</translation>
        </message>
        <message>
            <source>1: run as a tray item</source>
            <translation>1 : tourner comme icône de la zone de notification</translation>
        </message>
        <message>
            <source>virtual key code of the hot key</source>
            <translation>code de touche virtuel du raccourci</translation>
        </message>
        <message>
            <source>modifier flags of the hot key</source>
            <translation>touches de modification du raccourci, en bits</translation>
        </message>
        <message>
            <source>whether the effect was last switched on</source>
            <translation>si l’effet était activé en dernier lieu</translation>
        </message>
        <message>
            <source>the affected displays; none means all</source>
            <translation>les écrans concernés ; aucun signifie tous</translation>
        </message>
        <message>
            <source>the display last picked; 0 means all</source>
            <translation>le dernier écran choisi ; 0 signifie tous</translation>
        </message>
        <message>
            <source>dim: -1 black, 0 unchanged, 1 white</source>
            <translation>assombrir : -1 noir, 0 inchangé, 1 blanc</translation>
        </message>
        <message>
            <source>color filter: hue in degrees</source>
            <translation>filtre coloré : teinte en degrés</translation>
        </message>
        <message>
            <source>color filter: strength, 0 to 1</source>
            <translation>filtre coloré : intensité, de 0 à 1</translation>
        </message>
        <message>
            <source>seconds that a change fades for, 0 to 5</source>
            <translation>durée d’une transition en secondes, de 0 à 5</translation>
        </message>
        <message>
            <source>switch and choose looks by the schedule</source>
            <translation>basculer et choisir les apparences selon le programme</translation>
        </message>
        <message>
            <source>the schedule: times with looks or off</source>
            <translation>le programme : des heures avec apparences ou off</translation>
        </message>
        <message>
            <source>where the sun is looked at; empty: by the time zone</source>
            <translation>où l’on regarde le soleil ; vide : selon le fuseau horaire</translation>
        </message>
        <message>
            <source>minutes that a change by the schedule fades for, 0 to 60</source>
            <translation>durée en minutes de la transition d’un changement du programme, de 0 à 60</translation>
        </message>
        <message>
            <source>switch and choose looks by the rules</source>
            <translation>basculer et choisir les apparences selon les règles</translation>
        </message>
        <message>
            <source>the rules: what is in front, with looks or off</source>
            <translation>les règles : ce qui est au premier plan, avec des apparences ou off</translation>
        </message>
        <message>
            <source>displays by identifier with looks of their own</source>
            <translation>écrans ayant leur propre apparence, par identifiant</translation>
        </message>
        <message>
            <source>the f.lux warning was answered</source>
            <translation>l’avertissement sur f.lux a reçu une réponse</translation>
        </message>
        <message>
            <source>"%@" takes a list of effects.</source>
            <translation>« %@ » attend une liste d’effets.</translation>
        </message>
        <message>
            <source>"%@" takes a list of effect names.</source>
            <translation>« %@ » attend une liste de noms d’effets.</translation>
        </message>
        <message>
            <source>"%1$@" takes effects only, and there is no effect "%2$@".</source>
            <translation>« %1$@ » n’accepte que des effets, et l’effet « %2$@ » n’existe pas.</translation>
        </message>
        <message>
            <source>"%@" takes a place such as 52.5 13.4 or 33.9S 151.2E.</source>
            <translation>« %@ » accepte un lieu comme 52.5 13.4 ou 33.9S 151.2E.</translation>
        </message>
        <message>
            <source>"%@" takes true or false.</source>
            <translation>« %@ » attend true ou false.</translation>
        </message>
        <message>
            <source>"%@" takes a whole number.</source>
            <translation>« %@ » attend un nombre entier.</translation>
        </message>
        <message>
            <source>"%@" takes a finite number.</source>
            <translation>« %@ » attend un nombre fini.</translation>
        </message>
        <message>
            <source>"%@" takes a list of display identifiers.</source>
            <translation>« %@ » attend une liste d’identifiants d’écrans.</translation>
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
