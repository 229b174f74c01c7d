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
            <source>Effects</source>
            <translation>Efectos</translation>
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
            <source>H&amp;ue:</source>
            <translation>&amp;Tono:</translation>
        </message>
        <message>
            <source>The color that passes the filter</source>
            <translation>El color que deja pasar el filtro</translation>
        </message>
        <message>
            <source>Vivid&amp;ness:</source>
            <translation>&amp;Viveza:</translation>
        </message>
        <message>
            <source>How much of the other colors the filter takes away</source>
            <translation>Cuánto quita el filtro de los demás colores</translation>
        </message>
        <message>
            <source>&amp;Dim or lighten</source>
            <translation>&amp;Oscurecer o aclarar</translation>
        </message>
        <message>
            <source>Moves every color toward black or toward white</source>
            <translation>Acerca todos los colores al negro o al blanco</translation>
        </message>
        <message>
            <source>&amp;Level:</source>
            <translation>Nive&amp;l:</translation>
        </message>
        <message>
            <source>Negative values make the screen darker, positive ones lighter</source>
            <translation>Los valores negativos oscurecen la pantalla y los positivos la aclaran</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Vista previa</translation>
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
            <source>Screens</source>
            <translation>Pantallas</translation>
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
            <source>Hot key</source>
            <translation>Atajo de teclado</translation>
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
            <source>Application</source>
            <translation>Aplicación</translation>
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
            <source>Op&amp;en...</source>
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
            <source>Activate Effect</source>
            <translation>Activar el efecto</translation>
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
            <source>This desktop shows no tray at the moment; Nocturo can be reached through the applications menu.</source>
            <translation>Este escritorio no muestra ninguna bandeja del sistema en este momento; puede acceder a Nocturo desde el menú de aplicaciones.</translation>
        </message>
        <message>
            <source>Deactivate Effect</source>
            <translation>Desactivar el efecto</translation>
        </message>
        <message>
            <source>Clear Menu</source>
            <translation>Vaciar el menú</translation>
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
            <source>Effect</source>
            <translation>Efecto</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>Ayuda</translation>
        </message>
        <message>
            <source>&amp;About Nocturo</source>
            <translation>&amp;Acerca de Nocturo</translation>
        </message>
        <message>
            <source>Type a shortcut</source>
            <translation>Pulse un atajo</translation>
        </message>
        <message>
            <source>Hot key</source>
            <translation>Atajo de teclado</translation>
        </message>
        <message>
            <source>Press the new shortcut, or Escape to leave it as it was.</source>
            <translation>Pulse el nuevo atajo, o Esc para dejarlo como estaba.</translation>
        </message>
        <message>
            <source>Click or press Space to record another shortcut.</source>
            <translation>Haga clic o pulse Espacio para grabar otro atajo.</translation>
        </message>
        <message>
            <source>Control</source>
            <translation>Control</translation>
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
            <source>%@ (%@)</source>
            <translation>%@ (%@)</translation>
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
            <source>%@ %%</source>
            <translation>%@ %%</translation>
        </message>
        <message>
            <source>brightness from %@ to %@</source>
            <translation>brillo del %@ al %@</translation>
        </message>
        <message>
            <source>red</source>
            <translation>rojo</translation>
        </message>
        <message>
            <source>green</source>
            <translation>verde</translation>
        </message>
        <message>
            <source>blue</source>
            <translation>azul</translation>
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
            <source>The screens are hard to read now. They go back by themselves in %d s.</source>
            <translation>Ahora cuesta leer las pantallas. Los colores anteriores se restaurarán en %d s.</translation>
        </message>
        <message>
            <source> %</source>
            <translation> %</translation>
        </message>
        <message>
            <source>Close anyway</source>
            <translation>Cerrar de todos modos</translation>
        </message>
        <message>
            <source>Nocturo effects</source>
            <translation>Efectos de Nocturo</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>Aceptar</translation>
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
            <source>Opening failed</source>
            <translation>Error al abrir</translation>
        </message>
        <message>
            <source>“%@” is not an effect document.</source>
            <translation>«%@» no es un documento de efecto.</translation>
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
