<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
    <context>
        <name>NocturoPreferencePanel</name>
        <message>
            <source>Nocturo Preferences</source>
            <translation>Preferencias de Nocturo</translation>
        </message>
        <message>
            <source>Switches the effect on or off (Ctrl+E)</source>
            <translation>Activa o desactiva el efecto (Ctrl+E)</translation>
        </message>
        <message>
            <source>Effect</source>
            <translation>Efecto</translation>
        </message>
        <message>
            <source>Nocturo can stay at hand as an icon in the panel's tray.</source>
            <translation>Nocturo puede quedar a mano como icono en la bandeja del panel.</translation>
        </message>
        <message>
            <source>The icon then switches the effect and leads back to this window</source>
            <translation>El icono cambia entonces el efecto y lleva de vuelta a esta ventana</translation>
        </message>
        <message>
            <source>Stay in the tray</source>
            <translation>Quedar en la bandeja</translation>
        </message>
        <message>
            <source>The page "Switching" has this choice, too</source>
            <translation>La página «Activación» tiene también esta opción</translation>
        </message>
        <message>
            <source>Not now</source>
            <translation>Ahora no</translation>
        </message>
        <message>
            <source>Looks and effects</source>
            <translation>Aspectos y efectos</translation>
        </message>
        <message>
            <source>&amp;Invert</source>
            <translation>&amp;Invertir</translation>
        </message>
        <message>
            <source>Swaps light and dark</source>
            <translation>Intercambia lo claro y lo oscuro</translation>
        </message>
        <message>
            <source>&amp;Overexpose</source>
            <translation>Sobree&amp;xponer</translation>
        </message>
        <message>
            <source>Makes light tones white, so that stripes and backgrounds in light gray vanish</source>
            <translation>Vuelve blancos los tonos claros para que desaparezcan las rayas y los fondos de color gris claro</translation>
        </message>
        <message>
            <source>HDT&amp;V range</source>
            <translation>Rango &amp;HDTV</translation>
        </message>
        <message>
            <source>Fits the picture into the luminance range of a television, 16 to 235</source>
            <translation>Ajusta la imagen al rango de luminancia de un televisor, de 16 a 235</translation>
        </message>
        <message>
            <source>&amp;Color filter</source>
            <translation>&amp;Filtro de color</translation>
        </message>
        <message>
            <source>Tints the screen as colored glass would</source>
            <translation>Tiñe la pantalla como lo haría un cristal de color</translation>
        </message>
        <message>
            <source>&amp;Temperature:</source>
            <translation>Temperat&amp;ura:</translation>
        </message>
        <message>
            <source>The color filter as warm or cool light, from candles to the sky; empty while it is another color</source>
            <translation>El filtro de color como luz cálida o fría, de las velas al cielo; vacío mientras es otro color</translation>
        </message>
        <message>
            <source>H&amp;ue:</source>
            <translation>&amp;Tono:</translation>
        </message>
        <message>
            <source>The color that passes the filter</source>
            <translation>El color que deja pasar el filtro</translation>
        </message>
        <message>
            <source>Vivi&amp;dness:</source>
            <translation>&amp;Viveza:</translation>
        </message>
        <message>
            <source>How much of the other colors the filter takes away</source>
            <translation>Cuánto quita el filtro de los demás colores</translation>
        </message>
        <message>
            <source>Di&amp;m or lighten</source>
            <translation>&amp;Oscurecer o aclarar</translation>
        </message>
        <message>
            <source>Moves every color toward black or toward white</source>
            <translation>Acerca todos los colores al negro o al blanco</translation>
        </message>
        <message>
            <source>Level</source>
            <translation>Nivel</translation>
        </message>
        <message>
            <source>Negative values make the screen darker, positive ones lighter</source>
            <translation>Los valores negativos oscurecen la pantalla y los positivos la aclaran</translation>
        </message>
        <message>
            <source>A&amp;pply to:</source>
            <translation>A&amp;plicar a:</translation>
        </message>
        <message>
            <source>The screens that the effect is applied to</source>
            <translation>Las pantallas a las que se aplica el efecto</translation>
        </message>
        <message>
            <source>Sho&amp;w:</source>
            <translation>&amp;Mostrar:</translation>
        </message>
        <message>
            <source>The screen whose curves are shown</source>
            <translation>La pantalla cuyas curvas se muestran</translation>
        </message>
        <message>
            <source>Cu&amp;rves</source>
            <translation>&amp;Curvas</translation>
        </message>
        <message>
            <source>Shows beside the picture what becomes of each color channel</source>
            <translation>Muestra junto a la imagen qué pasa con cada canal de color</translation>
        </message>
        <message>
            <source>Its loo&amp;k:</source>
            <translation>&amp;Su aspecto:</translation>
        </message>
        <message>
            <source>What this screen shows in place of the effects of all, also when it comes back</source>
            <translation>Lo que muestra esta pantalla en lugar de los efectos de todas, también cuando vuelva</translation>
        </message>
        <message>
            <source>Switching</source>
            <translation>Activación</translation>
        </message>
        <message>
            <source>Otherwise Nocturo starts as you left it</source>
            <translation>Si no, Nocturo se inicia tal como lo dejó</translation>
        </message>
        <message>
            <source>Switch on when Nocturo s&amp;tarts</source>
            <translation>Activar al iniciar &amp;Nocturo</translation>
        </message>
        <message>
            <source>Nocturo is then there after every login</source>
            <translation>Nocturo estará ahí tras cada inicio de sesión</translation>
        </message>
        <message>
            <source>Start &amp;with the session</source>
            <translation>Iniciar con &amp;la sesión</translation>
        </message>
        <message>
            <source>Switch on or off when Nocturo is started a&amp;gain</source>
            <translation>Activar o &amp;desactivar al volver a iniciar Nocturo</translation>
        </message>
        <message>
            <source>A click on its icon in the launcher then works as a switch</source>
            <translation>Al hacer clic en su icono del lanzador, este funciona entonces como interruptor</translation>
        </message>
        <message>
            <source>&amp;Reapply every six seconds</source>
            <translation>Volver a aplicar &amp;cada seis segundos</translation>
        </message>
        <message>
            <source>Keeps the effect when games or other programs reset the colors</source>
            <translation>Mantiene el efecto cuando los juegos u otros programas restablecen los colores</translation>
        </message>
        <message>
            <source>The screen saver then shows its own colors</source>
            <translation>El salvapantallas muestra entonces sus propios colores</translation>
        </message>
        <message>
            <source>P&amp;ause while the screen saver runs</source>
            <translation>Pausar mientras se ejec&amp;uta el salvapantallas</translation>
        </message>
        <message>
            <source>Works in every program, when you let go of the key</source>
            <translation>Funciona en todos los programas, al soltar la tecla</translation>
        </message>
        <message>
            <source>Switch with the hot &amp;key</source>
            <translation>Activar o desactivar con el ata&amp;jo</translation>
        </message>
        <message>
            <source>Leaves Nocturo without a hot key</source>
            <translation>Deja a Nocturo sin atajo</translation>
        </message>
        <message>
            <source>Clear the hot key</source>
            <translation>Borrar el atajo</translation>
        </message>
        <message>
            <source>Fa&amp;de:</source>
            <translation>Transici&amp;ón:</translation>
        </message>
        <message>
            <source>How long the colors take to change when the effect is switched</source>
            <translation>Cuánto tardan los colores en cambiar al activar o desactivar el efecto</translation>
        </message>
        <message>
            <source>Show Nocturo:</source>
            <translation>Mostrar Nocturo:</translation>
        </message>
        <message>
            <source>Nocturo then has no icon of its own in the panel</source>
            <translation>Nocturo no tiene entonces un icono propio en el panel</translation>
        </message>
        <message>
            <source>As an ordinary application, in the task &amp;bar and launcher</source>
            <translation>Como aplicación normal, en la &amp;barra de tareas y el lanzador</translation>
        </message>
        <message>
            <source>A click on the icon shows Nocturo's menu, a middle click switches the effect</source>
            <translation>Un clic en el icono muestra el menú de Nocturo; un clic central cambia el efecto</translation>
        </message>
        <message>
            <source>As an icon in the panel's tra&amp;y</source>
            <translation>Como icono en la bandeja del si&amp;stema del panel</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Horario</translation>
        </message>
        <message>
            <source>Rules</source>
            <translation>Reglas</translation>
        </message>
        <message>
            <source>Ope&amp;n...</source>
            <translation>Ab&amp;rir…</translation>
        </message>
        <message>
            <source>Take the effects from a document</source>
            <translation>Tomar los efectos de un documento</translation>
        </message>
        <message>
            <source>&amp;Save...</source>
            <translation>&amp;Guardar…</translation>
        </message>
        <message>
            <source>Save the effects as a document</source>
            <translation>Guardar los efectos como documento</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Cerrar</translation>
        </message>
    </context>
    <context>
        <name>Localizable</name>
        <message>
            <source>No effect has been chosen.</source>
            <translation>No se ha elegido ningún efecto.</translation>
        </message>
        <message>
            <source>You should check at least one box in the preference panel relating to the screen effect, or Nocturo will have no visible effect on your screen.</source>
            <translation>Marque al menos una casilla de efecto de pantalla en las preferencias; de lo contrario, Nocturo no tendrá ningún efecto visible en su pantalla.</translation>
        </message>
        <message>
            <source>Open preferences...</source>
            <translation>Abrir las preferencias…</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Preferences...</source>
            <translation>Preferencias…</translation>
        </message>
        <message>
            <source>About Nocturo</source>
            <translation>Acerca de Nocturo</translation>
        </message>
        <message>
            <source>Quit Nocturo</source>
            <translation>Salir de Nocturo</translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>Pausa</translation>
        </message>
        <message>
            <source>30 minutes</source>
            <translation>30 minutos</translation>
        </message>
        <message>
            <source>1 hour</source>
            <translation>1 hora</translation>
        </message>
        <message>
            <source>Until tomorrow</source>
            <translation>Hasta mañana</translation>
        </message>
        <message>
            <source>&amp;Deactivate Effect</source>
            <translation>&amp;Desactivar el efecto</translation>
        </message>
        <message>
            <source>&amp;Activate Effect</source>
            <translation>&amp;Activar el efecto</translation>
        </message>
        <message>
            <source>Deactivate Effect</source>
            <translation>Desactivar el efecto</translation>
        </message>
        <message>
            <source>Activate Effect</source>
            <translation>Activar el efecto</translation>
        </message>
        <message>
            <source>Open Recent</source>
            <translation>Abrir reciente</translation>
        </message>
        <message>
            <source>Invert</source>
            <translation>Invertir</translation>
        </message>
        <message>
            <source>Overexpose</source>
            <translation>Sobreexponer</translation>
        </message>
        <message>
            <source>Dim or lighten</source>
            <translation>Atenuar o aclarar</translation>
        </message>
        <message>
            <source>Color filter</source>
            <translation>Filtro de color</translation>
        </message>
        <message>
            <source>HDTV range</source>
            <translation>Rango HDTV</translation>
        </message>
        <message>
            <source>Effects</source>
            <translation>Efectos</translation>
        </message>
        <message>
            <source>and %d more</source>
            <translation>y %d más</translation>
        </message>
        <message>
            <source>Looks</source>
            <translation>Aspectos</translation>
        </message>
        <message>
            <source>All Screens</source>
            <translation>Todas las pantallas</translation>
        </message>
        <message>
            <source>Screen %d</source>
            <translation>Pantalla %d</translation>
        </message>
        <message>
            <source>, %d</source>
            <translation>, %d</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Ninguna</translation>
        </message>
        <message>
            <source>%@, not connected</source>
            <translation>%@, no conectada</translation>
        </message>
        <message>
            <source>Lighten %@</source>
            <translation>Aclarar %@</translation>
        </message>
        <message>
            <source>Dim %@</source>
            <translation>Atenuar %@</translation>
        </message>
        <message>
            <source>Color filter %1$@° %2$@ %%</source>
            <translation>Filtro de color %1$@° %2$@ %%</translation>
        </message>
        <message>
            <source>all screens</source>
            <translation>todas las pantallas</translation>
        </message>
        <message>
            <source>screens that are not connected</source>
            <translation>pantallas que no están conectadas</translation>
        </message>
        <message>
            <source>On, but no effect is chosen</source>
            <translation>Activado, pero no hay ningún efecto elegido</translation>
        </message>
        <message>
            <source>On: %1$@ on %2$@</source>
            <translation>Activado: %1$@ en %2$@</translation>
        </message>
        <message>
            <source>%1$@, but not on %2$@</source>
            <translation>%1$@, pero no en %2$@</translation>
        </message>
        <message>
            <source>Paused while %@ runs</source>
            <translation>En pausa mientras se ejecuta %@</translation>
        </message>
        <message>
            <source>Paused until you go on</source>
            <translation>En pausa hasta que continúe</translation>
        </message>
        <message>
            <source>Paused until %@</source>
            <translation>En pausa hasta %@</translation>
        </message>
        <message>
            <source>%@; by hand</source>
            <translation>%@; a mano</translation>
        </message>
        <message>
            <source>%1$@; by hand until %2$@ or a rule holds</source>
            <translation>%1$@; a mano hasta %2$@ o hasta que se cumpla una regla</translation>
        </message>
        <message>
            <source>%1$@; by hand until %2$@</source>
            <translation>%1$@; a mano hasta %2$@</translation>
        </message>
        <message>
            <source>%1$@; by the rule "%2$@"</source>
            <translation>%1$@; por la regla «%2$@»</translation>
        </message>
        <message>
            <source>%@; by the schedule</source>
            <translation>%@; según el horario</translation>
        </message>
        <message>
            <source>%1$@; by the schedule until %2$@</source>
            <translation>%1$@; según el horario hasta %2$@</translation>
        </message>
        <message>
            <source>%@, its own look</source>
            <translation>%@, su propio aspecto</translation>
        </message>
        <message>
            <source>Off</source>
            <translation>Desactivado</translation>
        </message>
        <message>
            <source>On</source>
            <translation>Activado</translation>
        </message>
        <message>
            <source>%1$@. %2$@: %3$@</source>
            <translation>%1$@. %2$@: %3$@</translation>
        </message>
        <message>
            <source>Off. Choose effects, then switch on</source>
            <translation>Desactivado. Elija efectos y luego actívelo</translation>
        </message>
        <message>
            <source>Off. When on: %@</source>
            <translation>Desactivado. Al activarlo: %@</translation>
        </message>
        <message>
            <source>%@ %%</source>
            <translation>%@ %%</translation>
        </message>
        <message>
            <source>Paused: screen saver</source>
            <translation>En pausa: salvapantallas</translation>
        </message>
        <message>
            <source>Nobody knows when that is: "%@".</source>
            <translation>Nadie sabe cuándo es: «%@».</translation>
        </message>
        <message>
            <source>There is no look "%@".</source>
            <translation>No existe el aspecto «%@».</translation>
        </message>
        <message>
            <source>The time zone has no place for the sun; set one with: nocturoctl set SchedulePlace "52.5 13.4"</source>
            <translation>La zona horaria no tiene un lugar para el sol; indique uno con: nocturoctl set SchedulePlace "52.5 13.4"</translation>
        </message>
        <message>
            <source>"%@" is no length of a pause, such as 30m, 2h or 1h30m, up to 366d.</source>
            <translation>«%@» no es una duración de pausa, como 30m, 2h o 1h30m, hasta 366d.</translation>
        </message>
        <message>
            <source>"%@" is no time to pause for, such as 30m, 2h, until 18:00 or until sunset.</source>
            <translation>«%@» no es un tiempo de pausa, como 30m, 2h, until 18:00 o until sunset.</translation>
        </message>
        <message>
            <source>Nobody could read the screens under the look "%@"; it means off until it is changed.</source>
            <translation>Con el aspecto «%@» nadie podía leer las pantallas; significa apagado hasta que se cambie.</translation>
        </message>
        <message>
            <source>This desktop does not tell which window is in front.</source>
            <translation>Este escritorio no dice qué ventana está delante.</translation>
        </message>
        <message>
            <source>There is no look "%@"; the name of a program with spaces stands between quotation marks.</source>
            <translation>No existe el aspecto «%@»; el nombre de un programa con espacios va entre comillas.</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ rules at most.</source>
            <translation>«%1$@» admite una lista de %2$@ reglas como máximo.</translation>
        </message>
        <message>
            <source>There is no rule %@.</source>
            <translation>No hay ninguna regla %@.</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ points at most.</source>
            <translation>«%1$@» admite una lista de %2$@ puntos como máximo.</translation>
        </message>
        <message>
            <source>The schedule has no point %@.</source>
            <translation>El horario no tiene un punto %@.</translation>
        </message>
        <message>
            <source>There is no setting "%@".</source>
            <translation>No existe el ajuste «%@».</translation>
        </message>
        <message>
            <source>"%@" is no absolute path.</source>
            <translation>«%@» no es una ruta absoluta.</translation>
        </message>
        <message>
            <source>No setting takes a value of this type.</source>
            <translation>Ningún ajuste admite un valor de este tipo.</translation>
        </message>
        <message>
            <source>The display server keeps %@ to itself, so it cannot be the hot key.</source>
            <translation>El servidor gráfico se reserva %@, así que no puede ser el atajo de teclado.</translation>
        </message>
        <message>
            <source>"%@" is not an effect document.</source>
            <translation>«%@» no es un documento de efecto.</translation>
        </message>
        <message>
            <source>Could not save settings at "%@": %@.</source>
            <translation>No se pudieron guardar los ajustes en «%@»: %@.</translation>
        </message>
        <message>
            <source>A temperature is from 1000 to 25000 K.</source>
            <translation>Una temperatura va de 1000 a 25000 K.</translation>
        </message>
        <message>
            <source>The color filter has a hue and a vividness that are no temperature.</source>
            <translation>El tono y la viveza del filtro de color no corresponden a ninguna temperatura.</translation>
        </message>
        <message>
            <source>"%@" is no setting that goes in steps.</source>
            <translation>«%@» no es un ajuste que vaya por pasos.</translation>
        </message>
        <message>
            <source>One display has to stay, as a choice of none means all; nocturoctl off switches the effect off.</source>
            <translation>Tiene que quedar una pantalla, pues no elegir ninguna significa todas; nocturoctl off desactiva el efecto.</translation>
        </message>
        <message>
            <source>There is no display with the identifier %d.</source>
            <translation>No hay ninguna pantalla con el identificador %d.</translation>
        </message>
        <message>
            <source>These are not effect documents: %@</source>
            <translation>Estos no son documentos de efecto: %@</translation>
        </message>
        <message>
            <source>Nocturo waits for the answer to the question that it shows.</source>
            <translation>Nocturo espera la respuesta a la pregunta que muestra.</translation>
        </message>
        <message>
            <source>No more than %d documents can be opened at once.</source>
            <translation>No se pueden abrir más de %d documentos a la vez.</translation>
        </message>
        <message>
            <source>Nocturo answered something that this version does not understand.</source>
            <translation>Nocturo ha respondido algo que esta versión no entiende.</translation>
        </message>
        <message>
            <source>Nocturo is not running.</source>
            <translation>Nocturo no se está ejecutando.</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>En pausa</translation>
        </message>
        <message>
            <source>Nocturo is not running; start it with: nocturo &amp;</source>
            <translation>Nocturo no se está ejecutando; inícielo con: nocturo &amp;</translation>
        </message>
        <message>
            <source>The session bus failed: %@.</source>
            <translation>Falló el bus de sesión: %@.</translation>
        </message>
        <message>
            <source>There is no session bus over which Nocturo could be reached; start it inside a desktop session with: nocturo &amp;</source>
            <translation>No hay ningún bus de sesión por el que llegar a Nocturo; inícielo dentro de una sesión de escritorio con: nocturo &amp;</translation>
        </message>
        <message>
            <source>The Nocturo that runs does not answer.</source>
            <translation>El Nocturo en ejecución no responde.</translation>
        </message>
        <message>
            <source>Nocturo did not do it: %@</source>
            <translation>Nocturo no lo hizo: %@</translation>
        </message>
        <message>
            <source>There is no setting "%@"; nocturoctl status --all lists them.</source>
            <translation>No existe el ajuste «%@»; nocturoctl status --all los enumera.</translation>
        </message>
        <message>
            <source>No hot key is chosen.</source>
            <translation>No se ha elegido ningún atajo.</translation>
        </message>
        <message>
            <source>%@  (not enabled; nocturoctl hotkey enable)</source>
            <translation>%@  (no habilitado; nocturoctl hotkey enable)</translation>
        </message>
        <message>
            <source>%@  (not in force: another program holds it, or the desktop offers no hot keys)</source>
            <translation>%@  (sin efecto: otro programa lo usa, o el escritorio no ofrece atajos)</translation>
        </message>
        <message>
            <source>Name a file.</source>
            <translation>Indique un archivo.</translation>
        </message>
        <message>
            <source>There is no such file: %@</source>
            <translation>No existe ese archivo: %@</translation>
        </message>
        <message>
            <source>No display is online.</source>
            <translation>No hay ninguna pantalla conectada.</translation>
        </message>
        <message>
            <source>The file "%@" cannot be written.</source>
            <translation>No se puede escribir el archivo «%@».</translation>
        </message>
        <message>
            <source>Switch the effect on</source>
            <translation>Activar el efecto</translation>
        </message>
        <message>
            <source>--fade has it come little by little, in up to 5 seconds.</source>
            <translation>Con --fade llega poco a poco, en hasta 5 segundos.</translation>
        </message>
        <message>
            <source>Switch the effect off</source>
            <translation>Desactivar el efecto</translation>
        </message>
        <message>
            <source>Every display gets its own colors back.</source>
            <translation>Cada pantalla recupera sus propios colores.</translation>
        </message>
        <message>
            <source>Switch the effect on or off</source>
            <translation>Activar o desactivar el efecto</translation>
        </message>
        <message>
            <source>Bind this to a key. --fade has it come and go little by little, in up to 5 seconds.</source>
            <translation>Asígnelo a una tecla. Con --fade aparece y desaparece poco a poco, en hasta 5 segundos.</translation>
        </message>
        <message>
            <source>Switch the effect off for a time</source>
            <translation>Desactivar el efecto por un tiempo</translation>
        </message>
        <message>
            <source>For so long, such as 30m, 2h or 1h30m; until 18:00, sunrise, tomorrow,
which is six in the morning, or next, the schedule's next point; while a command
runs; or until you switch the effect or say cancel.</source>
            <translation>Ese tiempo, como 30m, 2h o 1h30m; until 18:00, sunrise (la salida del sol), tomorrow, que
son las seis de la mañana, o next, el próximo punto del horario; while, mientras se ejecuta
una orden; o hasta que active el efecto o diga cancel.</translation>
        </message>
        <message>
            <source>Show or change what happens by the clock and the sun</source>
            <translation>Mostrar o cambiar lo que ocurre según el reloj y el sol</translation>
        </message>
        <message>
            <source>A POINT is a time and a look or off: 07:00 off, sunset-00:30 Warm evening. Instead of a
time of day it may have dawn, sunrise, sunset or dusk. list and next take --json.</source>
            <translation>POINT es una hora y un aspecto u off: 07:00 off, sunset-00:30 Warm evening. En vez de una
hora puede tener dawn, sunrise, sunset o dusk. list y next admiten --json.</translation>
        </message>
        <message>
            <source>Show or change what happens while programs are in front</source>
            <translation>Mostrar o cambiar lo que ocurre mientras hay programas delante</translation>
        </message>
        <message>
            <source>A RULE is fullscreen, program NAME or game, and a look or off: fullscreen off,
program mpv Warm evening. The first one that holds for a display counts. list takes
--json.</source>
            <translation>Una RULE es fullscreen, program NAME o game, y un aspecto u off: fullscreen off,
program mpv Warm evening. Cuenta la primera que vale para una pantalla. list admite
--json.</translation>
        </message>
        <message>
            <source>Show the state of everything</source>
            <translation>Mostrar el estado de todo</translation>
        </message>
        <message>
            <source>With --all, every setting as well; with --json, one object for programs; with --bar,
a line for a bar: waybar, polybar or i3status-rust. --follow prints another line at
each change, whether Nocturo runs or comes later.</source>
            <translation>Con --all, también todos los ajustes; con --json, un objeto para programas; con --bar,
una línea para una barra: waybar, polybar o i3status-rust. --follow imprime otra con
cada cambio, tanto si Nocturo se ejecuta como si llega después.</translation>
        </message>
        <message>
            <source>List or choose the effects</source>
            <translation>Enumerar o elegir los efectos</translation>
        </message>
        <message>
            <source>NAME is invert, overexposure, dim, color-filter or hdtv-luminance, or a class
name. add, remove and toggle change the selection, only replaces it.</source>
            <translation>NAME es invert, overexposure, dim, color-filter o hdtv-luminance, o el nombre de una
clase. add, remove y toggle modifican la selección, only la sustituye.</translation>
        </message>
        <message>
            <source>Show the dim level, dim or lighten</source>
            <translation>Mostrar el nivel, atenuar o aclarar</translation>
        </message>
        <message>
            <source>N% makes the picture darker by so much than it is by itself. +N% and -N% are steps: they
make it lighter and darker than it is now, and print what it is then. =LEVEL% is what
the window shows, from =-100% (black) over =0% to =100% (white).</source>
            <translation>N% oscurece la imagen tanto respecto a como es de por sí. +N% y -N% son pasos: la hacen
más clara y más oscura que ahora, e imprimen cómo queda. =NIVEL% es lo que muestra la
ventana, de =-100% (negro) pasando por =0% a =100% (blanco).</translation>
        </message>
        <message>
            <source>Show or choose hue and vividness of the color filter</source>
            <translation>Mostrar o elegir el tono y la viveza del filtro de color</translation>
        </message>
        <message>
            <source>HUE is in degrees: 0 red, 25 orange, 120 green, 240 blue. +N and -N go so far from
what is there.</source>
            <translation>HUE va en grados: 0 rojo, 25 naranja, 120 verde, 240 azul. +N y -N parten de lo
que hay.</translation>
        </message>
        <message>
            <source>Show or choose a color temperature</source>
            <translation>Mostrar o elegir una temperatura de color</translation>
        </message>
        <message>
            <source>From 1000 (candle) over 6500 (neutral) to 25000 (blue sky), as hue and vividness of the
color filter, which is chosen. +N and -N go so far from the one in force.</source>
            <translation>De 1000 (vela) pasando por 6500 (neutra) a 25000 (cielo azul), como tono y viveza del
filtro de color, que queda elegido. +N y -N parten de la vigente.</translation>
        </message>
        <message>
            <source>Show, choose or keep a combination of effects</source>
            <translation>Mostrar, elegir o guardar una combinación de efectos</translation>
        </message>
        <message>
            <source>list [--json]      all of them, those that come with Nocturo and your own
next, previous     the one after or before the one in force
back               what the last look replaced
save NAME          keep the effects as a look of your own
rename NAME NEW, delete NAME, move NAME PLACE</source>
            <translation>list [--json]      todos, los que vienen con Nocturo y los propios
next, previous     el siguiente o el anterior al vigente
back               lo que sustituyó el último aspecto
save NAME          guardar los efectos como aspecto propio
rename NAME NEW, delete NAME, move NAME PLACE</translation>
        </message>
        <message>
            <source>Show a setting</source>
            <translation>Mostrar un ajuste</translation>
        </message>
        <message>
            <source>nocturoctl status --all lists the keys.</source>
            <translation>nocturoctl status --all enumera las claves.</translation>
        </message>
        <message>
            <source>Change a setting</source>
            <translation>Cambiar un ajuste</translation>
        </message>
        <message>
            <source>VALUE is true or false, a number, or a list with commas, as the setting takes it.
For example: nocturoctl set NDDimEffectLevel -30%. Numbers beyond the range and displays
that are not there are refused without --force.</source>
            <translation>VALUE es true o false, un número o una lista con comas, según el ajuste.
Por ejemplo: nocturoctl set NDDimEffectLevel -30%. Los números fuera del rango y las
pantallas que no existen se rechazan sin --force.</translation>
        </message>
        <message>
            <source>Change a number by so much</source>
            <translation>Cambiar un número en esa cantidad</translation>
        </message>
        <message>
            <source>As far as its range goes. For example: nocturoctl step NDDimEffectLevel -5%</source>
            <translation>Hasta donde llega su rango. Por ejemplo: nocturoctl step NDDimEffectLevel -5%</translation>
        </message>
        <message>
            <source>Give a setting its default value again</source>
            <translation>Devolver a un ajuste su valor predeterminado</translation>
        </message>
        <message>
            <source>List or choose the affected displays</source>
            <translation>Enumerar o elegir las pantallas afectadas</translation>
        </message>
        <message>
            <source>DISPLAY is its number in the list, its name or its identifier. only chooses these
alone; toggle puts each into the set of affected displays or takes it out. An
empty set means all displays, which is also what all chooses. look gives a display a
look of its own; - takes it away.</source>
            <translation>DISPLAY es su número en la lista, su nombre o su identificador. only elige solo estas;
toggle pone cada una en el conjunto de las afectadas o la quita de él. Un conjunto
vacío significa todas las pantallas, que es también lo que elige all. look da a
una pantalla un aspecto propio; - se lo quita.</translation>
        </message>
        <message>
            <source>Show or choose the global hot key</source>
            <translation>Mostrar o elegir el atajo global</translation>
        </message>
        <message>
            <source>KEYS is one key and any of ctrl, alt (or option), shift and super (or command),
such as 'ctrl+super+F5' or 'alt+shift+k'. The hot key toggles the effect while it
is enabled. Keys are what they type, and f1 to f20, left, right, up, down, home,
end, pageup, pagedown, insert, delete, backspace, tab, space, return, escape,
menu, volumeup, volumedown, mute, eisu, kana, keypad0 to keypad9, keypadplus,
keypadminus, keypadmultiply, keypaddivide, keypaddecimal, keypadcomma,
keypadequals, keypadenter and keypadclear.</source>
            <translation>KEYS es una tecla con cualesquiera de ctrl, alt (u option), shift y super (o command),
como 'ctrl+super+F5' o 'alt+shift+k'. El atajo conmuta el efecto mientras esté habilitado.
Las teclas son lo que escriben, y f1 a f20, left, right, up, down, home,
end, pageup, pagedown, insert, delete, backspace, tab, space, return, escape,
menu, volumeup, volumedown, mute, eisu, kana, keypad0 a keypad9, keypadplus,
keypadminus, keypadmultiply, keypaddivide, keypaddecimal, keypadcomma,
keypadequals, keypadenter y keypadclear.</translation>
        </message>
        <message>
            <source>Take the effects from a document</source>
            <translation>Tomar los efectos de un documento</translation>
        </message>
        <message>
            <source>Save the effects as a document</source>
            <translation>Guardar los efectos como documento</translation>
        </message>
        <message>
            <source>Draw what the effects do</source>
            <translation>Dibujar lo que hacen los efectos</translation>
        </message>
        <message>
            <source>The curves of a display, of the main one unless told otherwise, and a scene seen
through them, as a PNG picture. N is its number, name or identifier.</source>
            <translation>Las curvas de una pantalla, la principal si no se indica otra, y una escena vista a
través de ellas, como imagen PNG. N es su número, nombre o identificador.</translation>
        </message>
        <message>
            <source>Show the preference window</source>
            <translation>Mostrar la ventana de preferencias</translation>
        </message>
        <message>
            <source>Show the about box</source>
            <translation>Mostrar la ventana Acerca de</translation>
        </message>
        <message>
            <source>Print every change as it happens</source>
            <translation>Escribir cada cambio cuando ocurre</translation>
        </message>
        <message>
            <source>One JSON object a line: first the whole state, then what changed. Ends when Nocturo
does.</source>
            <translation>Un objeto JSON por línea: primero todo el estado, luego lo que cambió. Termina cuando lo
hace Nocturo.</translation>
        </message>
        <message>
            <source>Give every display its own colors back</source>
            <translation>Devolver a cada pantalla sus propios colores</translation>
        </message>
        <message>
            <source>Whether Nocturo runs, answers or was killed, and without a session bus as well. Where
nothing is known of a display's own colors it gets plain ones.</source>
            <translation>Tanto si Nocturo se ejecuta o responde como si se le mató, e incluso sin bus de
sesión. Una pantalla de cuyos colores no se sabe nada recibe colores neutros.</translation>
        </message>
        <message>
            <source>Give the displays back and end Nocturo</source>
            <translation>Devolver las pantallas y terminar Nocturo</translation>
        </message>
        <message>
            <source>%@  (the color filter is not chosen)</source>
            <translation>%@  (el filtro de color no está elegido)</translation>
        </message>
        <message>
            <source>"%1$@" takes a number from %2$@ to %3$@.</source>
            <translation>«%1$@» admite un número de %2$@ a %3$@.</translation>
        </message>
        <message>
            <source>%@  (dim is not chosen)</source>
            <translation>%@  (oscurecer no está elegido)</translation>
        </message>
        <message>
            <source>Nocturo has ended.</source>
            <translation>Nocturo ha terminado.</translation>
        </message>
        <message>
            <source>nocturoctl %@ --help tells more.</source>
            <translation>nocturoctl %@ --help dice más.</translation>
        </message>
        <message>
            <source>Usage: %@</source>
            <translation>Uso: %@</translation>
        </message>
        <message>
            <source>Drives the Nocturo that runs in this session.</source>
            <translation>Maneja el Nocturo que se ejecuta en esta sesión.</translation>
        </message>
        <message>
            <source>With --keep, colors that leave every screen hard to read stay. Without it they go back
after ten seconds, unless somebody keeps them.</source>
            <translation>Con --keep se quedan los colores con los que ninguna pantalla se lee bien. Sin
--keep vuelven atrás a los diez segundos, si nadie los conserva.</translation>
        </message>
        <message>
            <source>Exit status: 0 done, 1 failed, 2 not understood, 3 Nocturo is not running.</source>
            <translation>Estado de salida: 0 hecho, 1 fallo, 2 no entendido, 3 Nocturo no se está ejecutando.</translation>
        </message>
        <message>
            <source>Say what to do; nocturoctl --help lists the verbs.</source>
            <translation>Diga qué hacer; nocturoctl --help enumera los verbos.</translation>
        </message>
        <message>
            <source>There is no verb "%@"; nocturoctl --help lists them.</source>
            <translation>No existe el verbo «%@»; nocturoctl --help los enumera.</translation>
        </message>
        <message>
            <source>The answer cannot be written: %@.</source>
            <translation>No se puede escribir la respuesta: %@.</translation>
        </message>
        <message>
            <source>"%1$@" cannot be started: %2$@.</source>
            <translation>No se puede iniciar «%1$@»: %2$@.</translation>
        </message>
        <message>
            <source>no ramp, or another program has it</source>
            <translation>sin rampa, o la tiene otro programa</translation>
        </message>
        <message>
            <source>cannot be given a color profile</source>
            <translation>no admite perfil de color</translation>
        </message>
        <message>
            <source>in HDR mode</source>
            <translation>en modo HDR</translation>
        </message>
        <message>
            <source>refused by the desktop</source>
            <translation>rechazado por el escritorio</translation>
        </message>
        <message>
            <source>yes</source>
            <translation>sí</translation>
        </message>
        <message>
            <source>no</source>
            <translation>no</translation>
        </message>
        <message>
            <source>(none)</source>
            <translation>(ninguno)</translation>
        </message>
        <message>
            <source>%@ (not enabled)</source>
            <translation>%@ (no habilitado)</translation>
        </message>
        <message>
            <source>%@ (not in force)</source>
            <translation>%@ (sin efecto)</translation>
        </message>
        <message>
            <source>Another program</source>
            <translation>Otro programa</translation>
        </message>
        <message>
            <source>%@ changes the colors too: found once since Nocturo was started.</source>
            <translation>%@ también cambia los colores: detectado una vez desde que se inició Nocturo.</translation>
        </message>
        <message>
            <source>%@ changes the colors too: found %d times since Nocturo was started.</source>
            <translation>%@ también cambia los colores: detectado %d veces desde que se inició Nocturo.</translation>
        </message>
        <message>
            <source>look</source>
            <translation>aspecto</translation>
        </message>
        <message>
            <source>dim level</source>
            <translation>nivel de oscurecimiento</translation>
        </message>
        <message>
            <source>color filter hue</source>
            <translation>tono del filtro de color</translation>
        </message>
        <message>
            <source>color filter vividness</source>
            <translation>viveza del filtro de color</translation>
        </message>
        <message>
            <source>hot key</source>
            <translation>atajo de teclado</translation>
        </message>
        <message>
            <source>display services</source>
            <translation>origen de las pantallas</translation>
        </message>
        <message>
            <source>Displays</source>
            <translation>Pantallas</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>Ajustes</translation>
        </message>
        <message>
            <source>no.</source>
            <translation>n.º</translation>
        </message>
        <message>
            <source>name</source>
            <translation>nombre</translation>
        </message>
        <message>
            <source>identifier</source>
            <translation>identificador</translation>
        </message>
        <message>
            <source>ramp</source>
            <translation>rampa</translation>
        </message>
        <message>
            <source>applied</source>
            <translation>aplicado</translation>
        </message>
        <message>
            <source>monitor</source>
            <translation>monitor</translation>
        </message>
        <message>
            <source>none</source>
            <translation>ninguna</translation>
        </message>
        <message>
            <source>main</source>
            <translation>principal</translation>
        </message>
        <message>
            <source>not connected</source>
            <translation>no conectada</translation>
        </message>
        <message>
            <source>own</source>
            <translation>propio</translation>
        </message>
        <message>
            <source>Nocturo has switched its effect off and given the displays back.</source>
            <translation>Nocturo ha desactivado su efecto y devuelto las pantallas.</translation>
        </message>
        <message>
            <source>The displays have been given back, but a Nocturo that does not answer still runs and may change them again.</source>
            <translation>Las pantallas se han devuelto, pero un Nocturo que no responde sigue en ejecución y puede volver a cambiarlas.</translation>
        </message>
        <message>
            <source>The displays have their own colors back, as they were before Nocturo changed them.</source>
            <translation>Las pantallas han recuperado sus propios colores, como estaban antes de que Nocturo los cambiara.</translation>
        </message>
        <message>
            <source>Nocturo has left no display changed, so nothing was done.</source>
            <translation>Nocturo no ha dejado ninguna pantalla modificada, así que no se ha hecho nada.</translation>
        </message>
        <message>
            <source>The displays have plain colors now, or those of their color profiles.</source>
            <translation>Las pantallas tienen ahora colores neutros, o los de sus perfiles de color.</translation>
        </message>
        <message>
            <source>The desktop does not take the color profiles of the displays back; choose them in its settings.</source>
            <translation>El escritorio no vuelve a aceptar los perfiles de color de las pantallas; elíjalos en su configuración.</translation>
        </message>
        <message>
            <source>%@ does not tell Nocturo of its displays.</source>
            <translation>%@ no informa a Nocturo de sus pantallas.</translation>
        </message>
        <message>
            <source>There is no X server whose displays could be given back, because DISPLAY is not set.</source>
            <translation>No hay ningún servidor X cuyas pantallas se puedan devolver, porque DISPLAY no está definida.</translation>
        </message>
        <message>
            <source>The X server %@ does not answer.</source>
            <translation>El servidor X %@ no responde.</translation>
        </message>
        <message>
            <source>The compositor %@ does not answer.</source>
            <translation>El compositor %@ no responde.</translation>
        </message>
        <message>
            <source>%@ is in front</source>
            <translation>%@ está delante</translation>
        </message>
        <message>
            <source>a game is running</source>
            <translation>hay un juego en marcha</translation>
        </message>
        <message>
            <source>a window fills %@</source>
            <translation>una ventana ocupa %@</translation>
        </message>
        <message>
            <source>The rules are not in use; nocturoctl rules on changes that.</source>
            <translation>Las reglas no están en uso; nocturoctl rules on lo cambia.</translation>
        </message>
        <message>
            <source>The schedule is not in use; nocturoctl schedule on changes that.</source>
            <translation>El horario no está en uso; nocturoctl schedule on lo cambia.</translation>
        </message>
        <message>
            <source>Nothing is scheduled.</source>
            <translation>No hay nada previsto.</translation>
        </message>
        <message>
            <source>There is no display "%@"; nocturoctl screens lists their numbers, names and identifiers.</source>
            <translation>No existe la pantalla «%@»; nocturoctl screens muestra sus números, nombres e identificadores.</translation>
        </message>
        <message>
            <source>There is no effect "%@"; the effects are %@.</source>
            <translation>No existe el efecto «%@»; los efectos son %@.</translation>
        </message>
        <message>
            <source>About %@</source>
            <translation>Acerca de %@</translation>
        </message>
        <message>
            <source>Version %@</source>
            <translation>Versión %@</translation>
        </message>
        <message>
            <source>Credits.html</source>
            <translation>Credits_es.html</translation>
        </message>
        <message>
            <source>Nocturo User Guide</source>
            <translation>Guía del usuario de Nocturo</translation>
        </message>
        <message>
            <source>%@ is held by another program. Choose another hot key.</source>
            <translation>%@ lo tiene otro programa. Elija otro atajo.</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>Copiar</translation>
        </message>
        <message>
            <source>Change...</source>
            <translation>Cambiar...</translation>
        </message>
        <message>
            <source>Ask</source>
            <translation>Preguntar</translation>
        </message>
        <message>
            <source>Hot key</source>
            <translation>Atajo de teclado</translation>
        </message>
        <message>
            <source>Press the new hot key, with Ctrl, Alt or Super, or Escape to leave it as it was.</source>
            <translation>Pulse el nuevo atajo, con Ctrl, Alt o Super, o Esc para dejarlo como estaba.</translation>
        </message>
        <message>
            <source>Click or press Space to record another shortcut.</source>
            <translation>Haga clic o pulse Espacio para grabar otro atajo.</translation>
        </message>
        <message>
            <source>With Ctrl, Alt or Super</source>
            <translation>Con Ctrl, Alt o Super</translation>
        </message>
        <message>
            <source>Press keys, Esc cancels</source>
            <translation>Pulse teclas, Esc cancela</translation>
        </message>
        <message>
            <source>Save as a look...</source>
            <translation>Guardar como aspecto...</translation>
        </message>
        <message>
            <source>Keeps the effects under a name of your own</source>
            <translation>Conserva los efectos con un nombre propio</translation>
        </message>
        <message>
            <source>Change</source>
            <translation>Cambiar</translation>
        </message>
        <message>
            <source>Renames, moves or deletes the look that is marked</source>
            <translation>Cambia el nombre, el lugar del aspecto marcado o lo elimina</translation>
        </message>
        <message>
            <source>A click puts a look on the screens, another one takes it away</source>
            <translation>Un clic pone un aspecto en las pantallas y otro lo quita</translation>
        </message>
        <message>
            <source>Rename...</source>
            <translation>Cambiar nombre...</translation>
        </message>
        <message>
            <source>Move to the front</source>
            <translation>Hacia el principio</translation>
        </message>
        <message>
            <source>Move to the back</source>
            <translation>Hacia el final</translation>
        </message>
        <message>
            <source>Delete...</source>
            <translation>Eliminar...</translation>
        </message>
        <message>
            <source>Save as a look</source>
            <translation>Guardar como aspecto</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <source>Rename Look</source>
            <translation>Cambiar el nombre del aspecto</translation>
        </message>
        <message>
            <source>Rename</source>
            <translation>Cambiar</translation>
        </message>
        <message>
            <source>Delete the look "%@"?</source>
            <translation>¿Eliminar el aspecto «%@»?</translation>
        </message>
        <message>
            <source>It will be missed by: %@.</source>
            <translation>Lo echarán en falta: %@.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Eliminar</translation>
        </message>
        <message>
            <source>Name:</source>
            <translation>Nombre:</translation>
        </message>
        <message>
            <source>There is a look "%@" already.</source>
            <translation>Ya existe un aspecto «%@».</translation>
        </message>
        <message>
            <source>Replace</source>
            <translation>Reemplazar</translation>
        </message>
        <message>
            <source>This desktop shows no tray at the moment; Nocturo can be reached through the applications menu.</source>
            <translation>Este escritorio no muestra ninguna bandeja del sistema en este momento; puede acceder a Nocturo desde el menú de aplicaciones.</translation>
        </message>
        <message>
            <source>“%@” is not an effect document.</source>
            <translation>«%@» no es un documento de efecto.</translation>
        </message>
        <message>
            <source>Opening failed</source>
            <translation>Error al abrir</translation>
        </message>
        <message>
            <source>&amp;Effect</source>
            <translation>&amp;Efecto</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>&amp;Archivo</translation>
        </message>
        <message>
            <source>&amp;Open...</source>
            <translation>&amp;Abrir…</translation>
        </message>
        <message>
            <source>Open &amp;Recent</source>
            <translation>Abrir &amp;reciente</translation>
        </message>
        <message>
            <source>&amp;Clear Menu</source>
            <translation>&amp;Vaciar el menú</translation>
        </message>
        <message>
            <source>&amp;Save...</source>
            <translation>&amp;Guardar…</translation>
        </message>
        <message>
            <source>&amp;Preferences...</source>
            <translation>&amp;Preferencias…</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>&amp;Cerrar</translation>
        </message>
        <message>
            <source>&amp;Quit Nocturo</source>
            <translation>&amp;Salir de Nocturo</translation>
        </message>
        <message>
            <source>&amp;Help</source>
            <translation>A&amp;yuda</translation>
        </message>
        <message>
            <source>User &amp;Guide</source>
            <translation>&amp;Guía del usuario</translation>
        </message>
        <message>
            <source>&amp;About Nocturo</source>
            <translation>&amp;Acerca de Nocturo</translation>
        </message>
        <message>
            <source>red</source>
            <translation>rojo</translation>
        </message>
        <message>
            <source>orange</source>
            <translation>naranja</translation>
        </message>
        <message>
            <source>yellow</source>
            <translation>amarillo</translation>
        </message>
        <message>
            <source>lime</source>
            <translation>lima</translation>
        </message>
        <message>
            <source>green</source>
            <translation>verde</translation>
        </message>
        <message>
            <source>sea green</source>
            <translation>verde mar</translation>
        </message>
        <message>
            <source>cyan</source>
            <translation>cian</translation>
        </message>
        <message>
            <source>azure</source>
            <translation>azul celeste</translation>
        </message>
        <message>
            <source>blue</source>
            <translation>azul</translation>
        </message>
        <message>
            <source>violet</source>
            <translation>violeta</translation>
        </message>
        <message>
            <source>magenta</source>
            <translation>magenta</translation>
        </message>
        <message>
            <source>pink</source>
            <translation>rosa</translation>
        </message>
        <message>
            <source>candle</source>
            <translation>vela</translation>
        </message>
        <message>
            <source>tungsten</source>
            <translation>bombilla</translation>
        </message>
        <message>
            <source>sunset</source>
            <translation>atardecer</translation>
        </message>
        <message>
            <source>daylight</source>
            <translation>luz de día</translation>
        </message>
        <message>
            <source>The screens are hard to read now. They go back by themselves in %d s.</source>
            <translation>Ahora cuesta leer las pantallas. Los colores anteriores se restaurarán en %d s.</translation>
        </message>
        <message>
            <source>Keep these colors?</source>
            <translation>¿Mantener estos colores?</translation>
        </message>
        <message>
            <source>&amp;Keep</source>
            <translation>&amp;Mantener</translation>
        </message>
        <message>
            <source>&amp;Go back</source>
            <translation>&amp;Restaurar</translation>
        </message>
        <message>
            <source>Close anyway</source>
            <translation>Cerrar de todos modos</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>Aceptar</translation>
        </message>
        <message>
            <source>Nocturo effects</source>
            <translation>Efectos de Nocturo</translation>
        </message>
        <message>
            <source>Save Effect</source>
            <translation>Guardar efecto</translation>
        </message>
        <message>
            <source>&amp;Hide extension</source>
            <translation>&amp;Ocultar la extensión</translation>
        </message>
        <message>
            <source>Saving failed</source>
            <translation>Error al guardar</translation>
        </message>
        <message>
            <source>Could not save settings at this location.</source>
            <translation>No se pudieron guardar los ajustes en esta ubicación.</translation>
        </message>
        <message>
            <source>Open Effect</source>
            <translation>Abrir efecto</translation>
        </message>
        <message>
            <source>As all screens</source>
            <translation>Como todas las pantallas</translation>
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
            <translation>al instante</translation>
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
            <translation>A</translation>
        </message>
        <message>
            <source>Input</source>
            <translation>Entrada</translation>
        </message>
        <message>
            <source>Output</source>
            <translation>Salida</translation>
        </message>
        <message>
            <source>The colors of this screen cannot be changed.</source>
            <translation>Los colores de esta pantalla no se pueden cambiar.</translation>
        </message>
        <message>
            <source>Before</source>
            <translation>Antes</translation>
        </message>
        <message>
            <source>With effect</source>
            <translation>Con el efecto</translation>
        </message>
        <message>
            <source>Clipped</source>
            <translation>Recortado</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Vista previa</translation>
        </message>
        <message>
            <source>brightness from %@ to %@</source>
            <translation>brillo del %@ al %@</translation>
        </message>
        <message>
            <source>%@ strongest</source>
            <translation>predomina el %@</translation>
        </message>
        <message>
            <source>%@ and %@ strongest</source>
            <translation>predominan el %@ y el %@</translation>
        </message>
        <message>
            <source>inverted</source>
            <translation>colores invertidos</translation>
        </message>
        <message>
            <source>bright tones clipped</source>
            <translation>tonos claros recortados</translation>
        </message>
        <message>
            <source>dark tones clipped</source>
            <translation>tonos oscuros recortados</translation>
        </message>
        <message>
            <source>almost nothing can be told apart</source>
            <translation>casi nada se distingue</translation>
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
            <translation>Elegir aspectos según lo que esté de&amp;lante</translation>
        </message>
        <message>
            <source>Rules</source>
            <translation>Reglas</translation>
        </message>
        <message>
            <source>Of the rules that hold for a screen the first one counts.</source>
            <translation>De las reglas que valen para una pantalla cuenta la primera.</translation>
        </message>
        <message>
            <source>As its windows are called</source>
            <translation>Como se llaman sus ventanas</translation>
        </message>
        <message>
            <source>P&amp;ick a window</source>
            <translation>Elegir una &amp;ventana</translation>
        </message>
        <message>
            <source>The next window that comes to the front tells its program</source>
            <translation>La próxima ventana que pase al frente indica su programa</translation>
        </message>
        <message>
            <source>&amp;When:</source>
            <translation>&amp;Cuándo:</translation>
        </message>
        <message>
            <source>&amp;Program:</source>
            <translation>&amp;Programa:</translation>
        </message>
        <message>
            <source>&amp;Look:</source>
            <translation>A&amp;specto:</translation>
        </message>
        <message>
            <source>&amp;Add</source>
            <translation>Aña&amp;dir</translation>
        </message>
        <message>
            <source>&amp;Remove</source>
            <translation>&amp;Quitar</translation>
        </message>
        <message>
            <source>Move the rule up</source>
            <translation>Subir la regla</translation>
        </message>
        <message>
            <source>Move the rule down</source>
            <translation>Bajar la regla</translation>
        </message>
        <message>
            <source>A window fills a screen</source>
            <translation>Una ventana ocupa toda una pantalla</translation>
        </message>
        <message>
            <source>A program is in front</source>
            <translation>Un programa está delante</translation>
        </message>
        <message>
            <source>A game is running</source>
            <translation>Se está ejecutando un juego</translation>
        </message>
        <message>
            <source>No rule holds now.</source>
            <translation>Ahora no se cumple ninguna regla.</translation>
        </message>
        <message>
            <source>Now: %@</source>
            <translation>Ahora: %@</translation>
        </message>
        <message>
            <source>Now click a window of the program.</source>
            <translation>Ahora haga clic en una ventana del programa.</translation>
        </message>
        <message>
            <source> min</source>
            <translation> min</translation>
        </message>
        <message>
            <source>&amp;Choose looks by the clock and the sun</source>
            <translation>Elegir aspectos según el relo&amp;j y el sol</translation>
        </message>
        <message>
            <source>Pa&amp;use</source>
            <translation>&amp;Pausa</translation>
        </message>
        <message>
            <source>A pause gives the screens their own colors for a while.</source>
            <translation>Una pausa devuelve a las pantallas sus propios colores por un rato.</translation>
        </message>
        <message>
            <source>Resu&amp;me</source>
            <translation>C&amp;ontinuar</translation>
        </message>
        <message>
            <source>Latitude and longitude, such as 52.5 13.4; by the time zone where empty</source>
            <translation>Latitud y longitud, como 52.5 13.4; vacío: según la zona horaria</translation>
        </message>
        <message>
            <source>How long the colors take to change when a point comes</source>
            <translation>Cuánto tardan en cambiar los colores cuando llega un punto</translation>
        </message>
        <message>
            <source>&amp;Place of the sun:</source>
            <translation>&amp;Lugar del sol:</translation>
        </message>
        <message>
            <source>Change o&amp;ver:</source>
            <translation>Tra&amp;nsición:</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Horario</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Hora</translation>
        </message>
        <message>
            <source>Dawn</source>
            <translation>Alba</translation>
        </message>
        <message>
            <source>Sunrise</source>
            <translation>Amanecer</translation>
        </message>
        <message>
            <source>Sunset</source>
            <translation>Puesta de sol</translation>
        </message>
        <message>
            <source>Dusk</source>
            <translation>Anochecer</translation>
        </message>
        <message>
            <source>Minutes before or after the sun</source>
            <translation>Minutos antes o después del sol</translation>
        </message>
        <message>
            <source>Next: %1$@ at %2$@</source>
            <translation>A continuación: %1$@ a las %2$@</translation>
        </message>
        <message>
            <source>Not in use.</source>
            <translation>No está en uso.</translation>
        </message>
        <message>
            <source>Paused until %1$@, %2$@ h left</source>
            <translation>En pausa hasta %1$@, quedan %2$@ h</translation>
        </message>
        <message>
            <source>To see what the effects do, start it with --display-services=simulated.</source>
            <translation>Para ver qué hacen los efectos, inícielo con --display-services=simulated.</translation>
        </message>
        <message>
            <source>%@ offers Nocturo no way to change the colors of displays under Wayland.</source>
            <translation>%@ no ofrece a Nocturo ninguna forma de cambiar los colores de las pantallas en Wayland.</translation>
        </message>
        <message>
            <source>This desktop</source>
            <translation>Este escritorio</translation>
        </message>
        <message>
            <source>There is no X server to work with, because DISPLAY is not set.</source>
            <translation>No hay ningún servidor X que usar, porque DISPLAY no está definida.</translation>
        </message>
        <message>
            <source>Another Nocturo drives the displays of the X server %@.</source>
            <translation>Otro Nocturo maneja las pantallas del servidor X %@.</translation>
        </message>
        <message>
            <source>Another Nocturo drives the displays of %@.</source>
            <translation>Otro Nocturo maneja las pantallas de %@.</translation>
        </message>
        <message>
            <source>Neither GNOME nor Cinnamon is on the session bus.</source>
            <translation>Ni GNOME ni Cinnamon están en el bus de la sesión.</translation>
        </message>
        <message>
            <source>No Wayland compositor answers.</source>
            <translation>Ningún compositor de Wayland responde.</translation>
        </message>
        <message>
            <source>Plasma 5 offers Nocturo no way to change the colors of displays under Wayland; choose its X11 session when logging in, or use Plasma 6.</source>
            <translation>Plasma 5 no ofrece a Nocturo ninguna forma de cambiar los colores de las pantallas en Wayland; elija su sesión de X11 al iniciar sesión o use Plasma 6.</translation>
        </message>
        <message>
            <source>Displays are simulated; their pictures are in %@.</source>
            <translation>Las pantallas son simuladas; sus imágenes están en %@.</translation>
        </message>
        <message>
            <source>The X server %@ is only a guest of a Wayland session and cannot change its colors; displays under Wayland come with a later version.</source>
            <translation>El servidor X %@ es solo un invitado de una sesión Wayland y no puede cambiar sus colores; las pantallas en Wayland llegarán en una versión posterior.</translation>
        </message>
        <message>
            <source>The X server %@ has no RandR 1.3 or later.</source>
            <translation>El servidor X %@ no tiene RandR 1.3 o posterior.</translation>
        </message>
        <message>
            <source>The X server %@ cannot be reached.</source>
            <translation>No se puede acceder al servidor X %@.</translation>
        </message>
        <message>
            <source>There are no looks.</source>
            <translation>No hay aspectos.</translation>
        </message>
        <message>
            <source>No look was applied from which one could go back.</source>
            <translation>No se ha aplicado ningún aspecto desde el que volver.</translation>
        </message>
        <message>
            <source>Night reading</source>
            <translation>Lectura nocturna</translation>
        </message>
        <message>
            <source>Warm evening</source>
            <translation>Tarde cálida</translation>
        </message>
        <message>
            <source>Red night vision</source>
            <translation>Visión nocturna roja</translation>
        </message>
        <message>
            <source>Just dimmer</source>
            <translation>Solo más oscuro</translation>
        </message>
        <message>
            <source>Paper tint</source>
            <translation>Tono papel</translation>
        </message>
        <message>
            <source>"%@" cannot be the name of a look.</source>
            <translation>«%@» no puede ser el nombre de un aspecto.</translation>
        </message>
        <message>
            <source>The look "%@" comes with Nocturo and stays as it is.</source>
            <translation>El aspecto «%@» viene con Nocturo y se queda como está.</translation>
        </message>
        <message>
            <source>This desktop takes hot keys from its own settings. Add a shortcut for this command there:</source>
            <translation>Este escritorio toma los atajos de su propia configuración. Añada allí un atajo para esta orden:</translation>
        </message>
        <message>
            <source>This desktop takes hot keys from its own configuration. Put this line there:</source>
            <translation>Este escritorio toma los atajos de su propio archivo de configuración. Ponga allí esta línea:</translation>
        </message>
        <message>
            <source>The desktop is asked whether Nocturo may have it.</source>
            <translation>Se ha preguntado al escritorio si Nocturo puede usarlo.</translation>
        </message>
        <message>
            <source>This desktop has not been asked for it yet.</source>
            <translation>Aún no se ha pedido a este escritorio.</translation>
        </message>
        <message>
            <source>The desktop has refused it.</source>
            <translation>El escritorio lo ha rechazado.</translation>
        </message>
        <message>
            <source>The desktop has it as %@; its own settings change that.</source>
            <translation>El escritorio lo tiene como %@; se cambia en su configuración.</translation>
        </message>
        <message>
            <source>A hot key is one key and any of ctrl, alt, shift and super, joined by +, such as ctrl+super+F5; nocturoctl hotkey --help lists the keys.</source>
            <translation>Un atajo es una tecla con cualesquiera de ctrl, alt, shift y super, unidas por +, como ctrl+super+F5; nocturoctl hotkey --help enumera las teclas.</translation>
        </message>
        <message>
            <source>No hot key was given.</source>
            <translation>No se indicó ningún atajo.</translation>
        </message>
        <message>
            <source>"%@" has a plus sign with nothing before or after it.</source>
            <translation>«%@» tiene un signo más sin nada antes o después.</translation>
        </message>
        <message>
            <source>"%@" and "%@" are both keys, but a hot key has only one.</source>
            <translation>«%@» y «%@» son ambas teclas, pero un atajo solo tiene una.</translation>
        </message>
        <message>
            <source>"%@" has no key besides its modifiers.</source>
            <translation>«%@» no tiene ninguna tecla además de las modificadoras.</translation>
        </message>
        <message>
            <source>"%@" is not a key's name, and no key of the current keyboard layout types it.</source>
            <translation>«%@» no es el nombre de una tecla, y ninguna tecla de la distribución actual lo escribe.</translation>
        </message>
        <message>
            <source>"%@" is not a key's name, and the keyboard layout that could tell which key types it cannot be read.</source>
            <translation>«%@» no es el nombre de una tecla, y no se puede leer la distribución de teclado que diría qué tecla lo escribe.</translation>
        </message>
        <message>
            <source>"%@" needs a modifier: only function, arrow and navigation keys can be hot keys alone.</source>
            <translation>«%@» necesita una modificadora: solo las teclas de función, de flecha y de navegación pueden ser atajos por sí solas.</translation>
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
            <translation>Mayús</translation>
        </message>
        <message>
            <source>Super</source>
            <translation>Super</translation>
        </message>
        <message>
            <source>Return</source>
            <translation>Intro</translation>
        </message>
        <message>
            <source>Tab</source>
            <translation>Tab</translation>
        </message>
        <message>
            <source>Space</source>
            <translation>Espacio</translation>
        </message>
        <message>
            <source>Backspace</source>
            <translation>Retroceso</translation>
        </message>
        <message>
            <source>Esc</source>
            <translation>Esc</translation>
        </message>
        <message>
            <source>Volume Up</source>
            <translation>Subir volumen</translation>
        </message>
        <message>
            <source>Volume Down</source>
            <translation>Bajar volumen</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>Silencio</translation>
        </message>
        <message>
            <source>Menu</source>
            <translation>Menú</translation>
        </message>
        <message>
            <source>Ins</source>
            <translation>Ins</translation>
        </message>
        <message>
            <source>Home</source>
            <translation>Inicio</translation>
        </message>
        <message>
            <source>Page Up</source>
            <translation>Re Pág</translation>
        </message>
        <message>
            <source>Del</source>
            <translation>Supr</translation>
        </message>
        <message>
            <source>End</source>
            <translation>Fin</translation>
        </message>
        <message>
            <source>Page Down</source>
            <translation>Av Pág</translation>
        </message>
        <message>
            <source>Left</source>
            <translation>Izquierda</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>Derecha</translation>
        </message>
        <message>
            <source>Down</source>
            <translation>Abajo</translation>
        </message>
        <message>
            <source>Up</source>
            <translation>Arriba</translation>
        </message>
        <message>
            <source>Activate or Deactivate Effect</source>
            <translation>Activar o desactivar el efecto</translation>
        </message>
        <message>
            <source>Windows come with the package nocturo-desktop, which is not installed.</source>
            <translation>Las ventanas vienen con el paquete nocturo-desktop, que no está instalado.</translation>
        </message>
        <message>
            <source>Windows cannot be shown: %@.</source>
            <translation>No se pueden mostrar ventanas: %@.</translation>
        </message>
        <message>
            <source>Windows cannot be shown before Nocturo is started again, because another version was installed meanwhile.</source>
            <translation>No se pueden mostrar ventanas hasta que se reinicie Nocturo, porque entretanto se instaló otra versión.</translation>
        </message>
        <message>
            <source>The display server has gone, so Nocturo ends.</source>
            <translation>El servidor gráfico ha desaparecido, por lo que Nocturo termina.</translation>
        </message>
        <message>
            <source>Nocturo is already running.</source>
            <translation>Nocturo ya se está ejecutando.</translation>
        </message>
        <message>
            <source>The runtime directory cannot be used; set XDG_RUNTIME_DIR to one of yours.</source>
            <translation>No se puede usar el directorio de ejecución; ponga en XDG_RUNTIME_DIR un directorio suyo.</translation>
        </message>
        <message>
            <source>Nocturo starts switched off, because nocturoctl restore gave the displays back.</source>
            <translation>Nocturo se inicia desactivado porque nocturoctl restore devolvió las pantallas.</translation>
        </message>
        <message>
            <source>Nocturo starts switched off.</source>
            <translation>Nocturo se inicia desactivado.</translation>
        </message>
        <message>
            <source>Changes how whole screens look: inverted, overexposed, dimmed or lightened, in
the HDTV range or through a color filter. Runs until it is told to quit, and
gives every display back then. Drive it with nocturoctl.</source>
            <translation>Cambia el aspecto de pantallas enteras: invertidas, sobreexpuestas, oscurecidas o
aclaradas, en el rango HDTV o a través de un filtro de color. Se ejecuta hasta que
se le pide salir, y entonces devuelve cada pantalla. Se maneja con nocturoctl.</translation>
        </message>
        <message>
            <source>Options:</source>
            <translation>Opciones:</translation>
        </message>
        <message>
            <source>where the displays come from:</source>
            <translation>de dónde vienen las pantallas:</translation>
        </message>
        <message>
            <source>what this session offers (default)</source>
            <translation>lo que ofrezca esta sesión (predeterminado)</translation>
        </message>
        <message>
            <source>an X server</source>
            <translation>un servidor X</translation>
        </message>
        <message>
            <source>a Wayland compositor like sway</source>
            <translation>un compositor de Wayland como sway</translation>
        </message>
        <message>
            <source>GNOME or Cinnamon</source>
            <translation>GNOME o Cinnamon</translation>
        </message>
        <message>
            <source>KDE Plasma 6</source>
            <translation>KDE Plasma 6</translation>
        </message>
        <message>
            <source>N displays, 1 to 16 (default 2),</source>
            <translation>N pantallas, de 1 a 16 (2 si no se indica),</translation>
        </message>
        <message>
            <source>in memory, drawn into pictures</source>
            <translation>en memoria, dibujadas en imágenes</translation>
        </message>
        <message>
            <source>start with the effect off</source>
            <translation>iniciar con el efecto desactivado</translation>
        </message>
        <message>
            <source>start with the session, asking nothing</source>
            <translation>iniciar con la sesión, sin preguntar</translation>
        </message>
        <message>
            <source>show this text</source>
            <translation>mostrar este texto</translation>
        </message>
        <message>
            <source>show the version</source>
            <translation>mostrar la versión</translation>
        </message>
        <message>
            <source>A FILE is an effect document (.nocturo) to open, by the Nocturo that runs if
there is one. Starting Nocturo a second time without one toggles the effect.</source>
            <translation>FILE es un documento de efecto (.nocturo) para abrir; lo abre el Nocturo que se esté
ejecutando, si lo hay. Iniciar Nocturo otra vez sin documento conmuta el efecto.</translation>
        </message>
        <message>
            <source>There is no option "%@"; see nocturo --help.</source>
            <translation>No existe la opción «%@»; vea nocturo --help.</translation>
        </message>
        <message>
            <source>--display-services takes %@ or simulated:N with N from 1 to 16.</source>
            <translation>--display-services admite %@ o simulated:N con N de 1 a 16.</translation>
        </message>
        <message>
            <source>Without a session bus the Nocturo that runs cannot be given a document.</source>
            <translation>Sin un bus de sesión no se puede pasar un documento al Nocturo en ejecución.</translation>
        </message>
        <message>
            <source>"%@" is no identifier of a display with a look, such as 71524911 Night reading.</source>
            <translation>«%@» no es el identificador de una pantalla con un aspecto, como 71524911 Night reading.</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ looks at most.</source>
            <translation>«%1$@» admite una lista de %2$@ aspectos como máximo.</translation>
        </message>
        <message>
            <source>"%@" is no rule, such as fullscreen off or program mpv Warm evening.</source>
            <translation>«%@» no es una regla como fullscreen off o program mpv Warm evening.</translation>
        </message>
        <message>
            <source>"%@" is no point of a schedule, such as 07:00 off or sunset-00:30 Warm evening.</source>
            <translation>«%@» no es un punto de un horario como 07:00 off o sunset-00:30 Warm evening.</translation>
        </message>
        <message>
            <source>It holds until Nocturo quits; the settings cannot be saved to %1$@ (%2$@).</source>
            <translation>Vale hasta que Nocturo termine; los ajustes no se pueden guardar en %1$@ (%2$@).</translation>
        </message>
        <message>
            <source>the file that is there cannot be read</source>
            <translation>el archivo que hay allí no se puede leer</translation>
        </message>
        <message>
            <source>the selected effects</source>
            <translation>los efectos elegidos</translation>
        </message>
        <message>
            <source>switch the effect on at every start</source>
            <translation>activar el efecto en cada inicio</translation>
        </message>
        <message>
            <source>starting Nocturo again toggles the effect</source>
            <translation>volver a iniciar Nocturo conmuta el efecto</translation>
        </message>
        <message>
            <source>while on, apply again every 6 seconds</source>
            <translation>mientras esté activado, volver a aplicar cada 6 segundos</translation>
        </message>
        <message>
            <source>pause while the screen saver runs</source>
            <translation>pausar mientras se ejecuta el salvapantallas</translation>
        </message>
        <message>
            <source>toggle with the global hot key</source>
            <translation>conmutar con el atajo global</translation>
        </message>
        <message>
            <source>1: run as a tray item</source>
            <translation>1: ejecutarse como icono de la bandeja</translation>
        </message>
        <message>
            <source>virtual key code of the hot key</source>
            <translation>código de tecla virtual del atajo</translation>
        </message>
        <message>
            <source>modifier flags of the hot key</source>
            <translation>teclas modificadoras del atajo, como bits</translation>
        </message>
        <message>
            <source>whether the effect was last switched on</source>
            <translation>si el efecto quedó activado la última vez</translation>
        </message>
        <message>
            <source>the affected displays; none means all</source>
            <translation>las pantallas afectadas; ninguna significa todas</translation>
        </message>
        <message>
            <source>the display last picked; 0 means all</source>
            <translation>la última pantalla elegida; 0 significa todas</translation>
        </message>
        <message>
            <source>dim: -1 black, 0 unchanged, 1 white</source>
            <translation>oscurecer: -1 negro, 0 sin cambios, 1 blanco</translation>
        </message>
        <message>
            <source>color filter: hue in degrees</source>
            <translation>filtro de color: tono en grados</translation>
        </message>
        <message>
            <source>color filter: strength, 0 to 1</source>
            <translation>filtro de color: intensidad, de 0 a 1</translation>
        </message>
        <message>
            <source>seconds that a change fades for, 0 to 5</source>
            <translation>segundos que dura una transición, de 0 a 5</translation>
        </message>
        <message>
            <source>switch and choose looks by the schedule</source>
            <translation>activar y elegir aspectos según el horario</translation>
        </message>
        <message>
            <source>the schedule: times with looks or off</source>
            <translation>el horario: horas con aspectos u off</translation>
        </message>
        <message>
            <source>where the sun is looked at; empty: by the time zone</source>
            <translation>dónde se mira el sol; vacío: según la zona horaria</translation>
        </message>
        <message>
            <source>minutes that a change by the schedule fades for, 0 to 60</source>
            <translation>minutos que dura la transición de un cambio del horario, de 0 a 60</translation>
        </message>
        <message>
            <source>switch and choose looks by the rules</source>
            <translation>activar y elegir aspectos según las reglas</translation>
        </message>
        <message>
            <source>the rules: what is in front, with looks or off</source>
            <translation>las reglas: lo que está delante, con aspectos u off</translation>
        </message>
        <message>
            <source>displays by identifier with looks of their own</source>
            <translation>pantallas con aspectos propios, por identificador</translation>
        </message>
        <message>
            <source>the f.lux warning was answered</source>
            <translation>se respondió a la advertencia sobre f.lux</translation>
        </message>
        <message>
            <source>"%@" takes a list of effects.</source>
            <translation>«%@» admite una lista de efectos.</translation>
        </message>
        <message>
            <source>"%@" takes a list of effect names.</source>
            <translation>«%@» admite una lista de nombres de efectos.</translation>
        </message>
        <message>
            <source>"%1$@" takes effects only, and there is no effect "%2$@".</source>
            <translation>«%1$@» solo admite efectos, y no existe el efecto «%2$@».</translation>
        </message>
        <message>
            <source>"%@" takes a place such as 52.5 13.4 or 33.9S 151.2E.</source>
            <translation>«%@» admite un lugar como 52.5 13.4 o 33.9S 151.2E.</translation>
        </message>
        <message>
            <source>"%@" takes true or false.</source>
            <translation>«%@» admite true o false.</translation>
        </message>
        <message>
            <source>"%@" takes a whole number.</source>
            <translation>«%@» admite un número entero.</translation>
        </message>
        <message>
            <source>"%@" takes a finite number.</source>
            <translation>«%@» admite un número finito.</translation>
        </message>
        <message>
            <source>"%@" takes a list of display identifiers.</source>
            <translation>«%@» admite una lista de identificadores de pantalla.</translation>
        </message>
    </context>
    <context>
        <name>ZQFluxCheck</name>
        <message>
            <source>%@ is present on this computer.</source>
            <translation>%@ está presente en este equipo.</translation>
        </message>
        <message>
            <source>[%1$@ installed, might interfer %2$@.]</source>
            <translation>%2$@ también cambia los colores de las pantallas, por lo que puede interferir con %1$@: cada programa puede deshacer lo que hace el otro. Es preferible usar solo uno de los dos a la vez.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Continuar</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>Salir</translation>
        </message>
    </context>
</TS>
