<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
    <context>
        <name>NocturoPreferencePanel</name>
        <message>
            <source>Nocturo Preferences</source>
            <translation>Preferências do Nocturo</translation>
        </message>
        <message>
            <source>Switches the effect on or off (Ctrl+E)</source>
            <translation>Liga ou desliga o efeito (Ctrl+E)</translation>
        </message>
        <message>
            <source>Effect</source>
            <translation>Efeito</translation>
        </message>
        <message>
            <source>Nocturo can stay at hand as an icon in the panel's tray.</source>
            <translation>O Nocturo pode ficar à mão como ícone na bandeja do painel.</translation>
        </message>
        <message>
            <source>The icon then switches the effect and leads back to this window</source>
            <translation>O ícone então liga e desliga o efeito e leva de volta a esta janela</translation>
        </message>
        <message>
            <source>Stay in the tray</source>
            <translation>Ficar na bandeja</translation>
        </message>
        <message>
            <source>The page "Switching" has this choice, too</source>
            <translation>A página “Ativação” também tem esta opção</translation>
        </message>
        <message>
            <source>Not now</source>
            <translation>Agora não</translation>
        </message>
        <message>
            <source>Looks and effects</source>
            <translation>Visuais e efeitos</translation>
        </message>
        <message>
            <source>&amp;Invert</source>
            <translation>&amp;Inverter</translation>
        </message>
        <message>
            <source>Swaps light and dark</source>
            <translation>Troca o claro pelo escuro</translation>
        </message>
        <message>
            <source>&amp;Overexpose</source>
            <translation>Supere&amp;xpor</translation>
        </message>
        <message>
            <source>Makes light tones white, so that stripes and backgrounds in light gray vanish</source>
            <translation>Torna brancos os tons claros, para que listras e fundos em cinza-claro desapareçam</translation>
        </message>
        <message>
            <source>HDT&amp;V range</source>
            <translation>Faixa &amp;HDTV</translation>
        </message>
        <message>
            <source>Fits the picture into the luminance range of a television, 16 to 235</source>
            <translation>Ajusta a imagem à faixa de luminância de um televisor, de 16 a 235</translation>
        </message>
        <message>
            <source>&amp;Color filter</source>
            <translation>&amp;Filtro de cor</translation>
        </message>
        <message>
            <source>Tints the screen as colored glass would</source>
            <translation>Tinge a tela como faria um vidro colorido</translation>
        </message>
        <message>
            <source>&amp;Temperature:</source>
            <translation>&amp;Temperatura:</translation>
        </message>
        <message>
            <source>The color filter as warm or cool light, from candles to the sky; empty while it is another color</source>
            <translation>O filtro de cor como luz quente ou fria, da vela ao céu; vazio enquanto for outra cor</translation>
        </message>
        <message>
            <source>H&amp;ue:</source>
            <translation>&amp;Matiz:</translation>
        </message>
        <message>
            <source>The color that passes the filter</source>
            <translation>A cor que o filtro deixa passar</translation>
        </message>
        <message>
            <source>Vivi&amp;dness:</source>
            <translation>&amp;Vividez:</translation>
        </message>
        <message>
            <source>How much of the other colors the filter takes away</source>
            <translation>Quanto das outras cores o filtro retira</translation>
        </message>
        <message>
            <source>Di&amp;m or lighten</source>
            <translation>Esc&amp;urecer ou clarear</translation>
        </message>
        <message>
            <source>Moves every color toward black or toward white</source>
            <translation>Aproxima todas as cores do preto ou do branco</translation>
        </message>
        <message>
            <source>Level</source>
            <translation>Nível</translation>
        </message>
        <message>
            <source>Negative values make the screen darker, positive ones lighter</source>
            <translation>Valores negativos escurecem a tela, positivos a clareiam</translation>
        </message>
        <message>
            <source>A&amp;pply to:</source>
            <translation>A&amp;plicar a:</translation>
        </message>
        <message>
            <source>The screens that the effect is applied to</source>
            <translation>As telas em que o efeito é aplicado</translation>
        </message>
        <message>
            <source>Sho&amp;w:</source>
            <translation>M&amp;ostrar:</translation>
        </message>
        <message>
            <source>The screen whose curves are shown</source>
            <translation>A tela cujas curvas são mostradas</translation>
        </message>
        <message>
            <source>Cu&amp;rves</source>
            <translation>&amp;Curvas</translation>
        </message>
        <message>
            <source>Shows beside the picture what becomes of each color channel</source>
            <translation>Mostra ao lado da imagem o que acontece com cada canal de cor</translation>
        </message>
        <message>
            <source>Its loo&amp;k:</source>
            <translation>Seu visua&amp;l:</translation>
        </message>
        <message>
            <source>What this screen shows in place of the effects of all, also when it comes back</source>
            <translation>O que esta tela mostra no lugar dos efeitos de todas, também quando voltar</translation>
        </message>
        <message>
            <source>Switching</source>
            <translation>Ativação</translation>
        </message>
        <message>
            <source>Otherwise Nocturo starts as you left it</source>
            <translation>Caso contrário, o Nocturo inicia como você o deixou</translation>
        </message>
        <message>
            <source>Switch on when Nocturo s&amp;tarts</source>
            <translation>A&amp;tivar ao iniciar o Nocturo</translation>
        </message>
        <message>
            <source>Nocturo is then there after every login</source>
            <translation>O Nocturo estará lá depois de cada login</translation>
        </message>
        <message>
            <source>Start &amp;with the session</source>
            <translation>Inic&amp;iar com a sessão</translation>
        </message>
        <message>
            <source>Switch on or off when Nocturo is started a&amp;gain</source>
            <translation>Ativar ou &amp;desativar ao iniciar o Nocturo novamente</translation>
        </message>
        <message>
            <source>A click on its icon in the launcher then works as a switch</source>
            <translation>Um clique em seu ícone no lançador funciona então como interruptor</translation>
        </message>
        <message>
            <source>&amp;Reapply every six seconds</source>
            <translation>Reaplicar a cada seis se&amp;gundos</translation>
        </message>
        <message>
            <source>Keeps the effect when games or other programs reset the colors</source>
            <translation>Mantém o efeito quando jogos ou outros programas redefinem as cores</translation>
        </message>
        <message>
            <source>The screen saver then shows its own colors</source>
            <translation>O protetor de tela mostra então suas próprias cores</translation>
        </message>
        <message>
            <source>P&amp;ause while the screen saver runs</source>
            <translation>Pausar en&amp;quanto o protetor de tela estiver ativo</translation>
        </message>
        <message>
            <source>Works in every program, when you let go of the key</source>
            <translation>Funciona em todos os programas, quando você solta a tecla</translation>
        </message>
        <message>
            <source>Switch with the hot &amp;key</source>
            <translation>Ativar ou desativar com o ata&amp;lho</translation>
        </message>
        <message>
            <source>Leaves Nocturo without a hot key</source>
            <translation>Deixa o Nocturo sem atalho</translation>
        </message>
        <message>
            <source>Clear the hot key</source>
            <translation>Limpar o atalho</translation>
        </message>
        <message>
            <source>Fa&amp;de:</source>
            <translation>Transiçã&amp;o:</translation>
        </message>
        <message>
            <source>How long the colors take to change when the effect is switched</source>
            <translation>Quanto tempo as cores levam para mudar quando o efeito é ligado ou desligado</translation>
        </message>
        <message>
            <source>Show Nocturo:</source>
            <translation>Mostrar o Nocturo:</translation>
        </message>
        <message>
            <source>Nocturo then has no icon of its own in the panel</source>
            <translation>O Nocturo não tem então um ícone próprio no painel</translation>
        </message>
        <message>
            <source>As an ordinary application, in the task &amp;bar and launcher</source>
            <translation>Como um aplicativo comum, na &amp;barra de tarefas e no lançador</translation>
        </message>
        <message>
            <source>A click on the icon shows Nocturo's menu, a middle click switches the effect</source>
            <translation>Um clique no ícone mostra o menu do Nocturo; um clique do meio alterna o efeito</translation>
        </message>
        <message>
            <source>As an icon in the panel's tra&amp;y</source>
            <translation>Como um í&amp;cone na bandeja do painel</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Agenda</translation>
        </message>
        <message>
            <source>Rules</source>
            <translation>Regras</translation>
        </message>
        <message>
            <source>Ope&amp;n...</source>
            <translation>Ab&amp;rir…</translation>
        </message>
        <message>
            <source>Take the effects from a document</source>
            <translation>Obter os efeitos de um documento</translation>
        </message>
        <message>
            <source>&amp;Save...</source>
            <translation>&amp;Salvar…</translation>
        </message>
        <message>
            <source>Save the effects as a document</source>
            <translation>Salvar os efeitos como documento</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Fechar</translation>
        </message>
    </context>
    <context>
        <name>Localizable</name>
        <message>
            <source>No effect has been chosen.</source>
            <translation>Nenhum efeito foi escolhido.</translation>
        </message>
        <message>
            <source>You should check at least one box in the preference panel relating to the screen effect, or Nocturo will have no visible effect on your screen.</source>
            <translation>Marque pelo menos uma caixa de efeito de tela nas preferências; caso contrário, o Nocturo não terá nenhum efeito visível na sua tela.</translation>
        </message>
        <message>
            <source>Open preferences...</source>
            <translation>Abrir as preferências…</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Preferences...</source>
            <translation>Preferências…</translation>
        </message>
        <message>
            <source>About Nocturo</source>
            <translation>Sobre o Nocturo</translation>
        </message>
        <message>
            <source>Quit Nocturo</source>
            <translation>Sair do Nocturo</translation>
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
            <translation>Até amanhã</translation>
        </message>
        <message>
            <source>&amp;Deactivate Effect</source>
            <translation>&amp;Desativar o efeito</translation>
        </message>
        <message>
            <source>&amp;Activate Effect</source>
            <translation>&amp;Ativar o efeito</translation>
        </message>
        <message>
            <source>Deactivate Effect</source>
            <translation>Desativar o efeito</translation>
        </message>
        <message>
            <source>Activate Effect</source>
            <translation>Ativar o efeito</translation>
        </message>
        <message>
            <source>Open Recent</source>
            <translation>Abrir recente</translation>
        </message>
        <message>
            <source>Invert</source>
            <translation>Inverter</translation>
        </message>
        <message>
            <source>Overexpose</source>
            <translation>Superexpor</translation>
        </message>
        <message>
            <source>Dim or lighten</source>
            <translation>Escurecer ou clarear</translation>
        </message>
        <message>
            <source>Color filter</source>
            <translation>Filtro de cor</translation>
        </message>
        <message>
            <source>HDTV range</source>
            <translation>Faixa HDTV</translation>
        </message>
        <message>
            <source>Effects</source>
            <translation>Efeitos</translation>
        </message>
        <message>
            <source>and %d more</source>
            <translation>e mais %d</translation>
        </message>
        <message>
            <source>Looks</source>
            <translation>Visuais</translation>
        </message>
        <message>
            <source>All Screens</source>
            <translation>Todas as telas</translation>
        </message>
        <message>
            <source>Screen %d</source>
            <translation>Tela %d</translation>
        </message>
        <message>
            <source>, %d</source>
            <translation>, %d</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Nenhuma</translation>
        </message>
        <message>
            <source>%@, not connected</source>
            <translation>%@, não conectada</translation>
        </message>
        <message>
            <source>Lighten %@</source>
            <translation>Clarear %@</translation>
        </message>
        <message>
            <source>Dim %@</source>
            <translation>Escurecer %@</translation>
        </message>
        <message>
            <source>Color filter %1$@° %2$@ %%</source>
            <translation>Filtro de cor %1$@° %2$@ %%</translation>
        </message>
        <message>
            <source>all screens</source>
            <translation>todas as telas</translation>
        </message>
        <message>
            <source>screens that are not connected</source>
            <translation>telas que não estão conectadas</translation>
        </message>
        <message>
            <source>On, but no effect is chosen</source>
            <translation>Ligado, mas nenhum efeito foi escolhido</translation>
        </message>
        <message>
            <source>On: %1$@ on %2$@</source>
            <translation>Ligado: %1$@ em %2$@</translation>
        </message>
        <message>
            <source>%1$@, but not on %2$@</source>
            <translation>%1$@, mas não em %2$@</translation>
        </message>
        <message>
            <source>Paused while %@ runs</source>
            <translation>Em pausa enquanto %@ é executado</translation>
        </message>
        <message>
            <source>Paused until you go on</source>
            <translation>Em pausa até você continuar</translation>
        </message>
        <message>
            <source>Paused until %@</source>
            <translation>Em pausa até %@</translation>
        </message>
        <message>
            <source>%@; by hand</source>
            <translation>%@; à mão</translation>
        </message>
        <message>
            <source>%1$@; by hand until %2$@ or a rule holds</source>
            <translation>%1$@; à mão até %2$@ ou até valer uma regra</translation>
        </message>
        <message>
            <source>%1$@; by hand until %2$@</source>
            <translation>%1$@; à mão até %2$@</translation>
        </message>
        <message>
            <source>%1$@; by the rule "%2$@"</source>
            <translation>%1$@; pela regra "%2$@"</translation>
        </message>
        <message>
            <source>%@; by the schedule</source>
            <translation>%@; pela agenda</translation>
        </message>
        <message>
            <source>%1$@; by the schedule until %2$@</source>
            <translation>%1$@; pela agenda até %2$@</translation>
        </message>
        <message>
            <source>%@, its own look</source>
            <translation>%@, seu próprio visual</translation>
        </message>
        <message>
            <source>Off</source>
            <translation>Desativado</translation>
        </message>
        <message>
            <source>On</source>
            <translation>Ativado</translation>
        </message>
        <message>
            <source>%1$@. %2$@: %3$@</source>
            <translation>%1$@. %2$@: %3$@</translation>
        </message>
        <message>
            <source>Off. Choose effects, then switch on</source>
            <translation>Desligado. Escolha efeitos e depois ligue</translation>
        </message>
        <message>
            <source>Off. When on: %@</source>
            <translation>Desligado. Ao ligar: %@</translation>
        </message>
        <message>
            <source>%@ %%</source>
            <translation>%@%%</translation>
        </message>
        <message>
            <source>Paused: screen saver</source>
            <translation>Em pausa: protetor de tela</translation>
        </message>
        <message>
            <source>Nobody knows when that is: "%@".</source>
            <translation>Ninguém sabe quando é: "%@".</translation>
        </message>
        <message>
            <source>There is no look "%@".</source>
            <translation>Não existe o visual “%@”.</translation>
        </message>
        <message>
            <source>The time zone has no place for the sun; set one with: nocturoctl set SchedulePlace "52.5 13.4"</source>
            <translation>O fuso horário não tem um lugar para o sol; defina um com: nocturoctl set SchedulePlace "52.5 13.4"</translation>
        </message>
        <message>
            <source>"%@" is no length of a pause, such as 30m, 2h or 1h30m, up to 366d.</source>
            <translation>“%@” não é uma duração de pausa, como 30m, 2h ou 1h30m, até 366d.</translation>
        </message>
        <message>
            <source>"%@" is no time to pause for, such as 30m, 2h, until 18:00 or until sunset.</source>
            <translation>“%@” não é um tempo de pausa, como 30m, 2h, until 18:00 ou until sunset.</translation>
        </message>
        <message>
            <source>Nobody could read the screens under the look "%@"; it means off until it is changed.</source>
            <translation>Com o visual “%@” ninguém conseguia ler as telas; ele significa desligado até ser alterado.</translation>
        </message>
        <message>
            <source>This desktop does not tell which window is in front.</source>
            <translation>Esta área de trabalho não diz qual janela está na frente.</translation>
        </message>
        <message>
            <source>There is no look "%@"; the name of a program with spaces stands between quotation marks.</source>
            <translation>Não existe o visual “%@”; o nome de um programa com espaços fica entre aspas.</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ rules at most.</source>
            <translation>"%1$@" aceita uma lista de no máximo %2$@ regras.</translation>
        </message>
        <message>
            <source>There is no rule %@.</source>
            <translation>Não há regra %@.</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ points at most.</source>
            <translation>"%1$@" aceita uma lista de no máximo %2$@ pontos.</translation>
        </message>
        <message>
            <source>The schedule has no point %@.</source>
            <translation>A agenda não tem um ponto %@.</translation>
        </message>
        <message>
            <source>There is no setting "%@".</source>
            <translation>Não existe a configuração “%@”.</translation>
        </message>
        <message>
            <source>"%@" is no absolute path.</source>
            <translation>“%@” não é um caminho absoluto.</translation>
        </message>
        <message>
            <source>No setting takes a value of this type.</source>
            <translation>Nenhuma configuração aceita um valor deste tipo.</translation>
        </message>
        <message>
            <source>The display server keeps %@ to itself, so it cannot be the hot key.</source>
            <translation>O servidor gráfico reserva %@ para si, por isso não pode ser o atalho de teclado.</translation>
        </message>
        <message>
            <source>"%@" is not an effect document.</source>
            <translation>“%@” não é um documento de efeito.</translation>
        </message>
        <message>
            <source>Could not save settings at "%@": %@.</source>
            <translation>Não foi possível salvar as configurações em “%@”: %@.</translation>
        </message>
        <message>
            <source>A temperature is from 1000 to 25000 K.</source>
            <translation>Uma temperatura vai de 1000 a 25000 K.</translation>
        </message>
        <message>
            <source>The color filter has a hue and a vividness that are no temperature.</source>
            <translation>O matiz e a vividez do filtro de cor não correspondem a nenhuma temperatura.</translation>
        </message>
        <message>
            <source>"%@" is no setting that goes in steps.</source>
            <translation>“%@” não é uma configuração que vá por passos.</translation>
        </message>
        <message>
            <source>One display has to stay, as a choice of none means all; nocturoctl off switches the effect off.</source>
            <translation>Uma tela precisa ficar, pois nenhuma significa todas; nocturoctl off desativa o efeito.</translation>
        </message>
        <message>
            <source>There is no display with the identifier %d.</source>
            <translation>Não há tela com o identificador %d.</translation>
        </message>
        <message>
            <source>These are not effect documents: %@</source>
            <translation>Estes não são documentos de efeito: %@</translation>
        </message>
        <message>
            <source>Nocturo waits for the answer to the question that it shows.</source>
            <translation>O Nocturo espera a resposta à pergunta que está mostrando.</translation>
        </message>
        <message>
            <source>No more than %d documents can be opened at once.</source>
            <translation>Não é possível abrir mais de %d documentos de uma vez.</translation>
        </message>
        <message>
            <source>Nocturo answered something that this version does not understand.</source>
            <translation>O Nocturo respondeu algo que esta versão não entende.</translation>
        </message>
        <message>
            <source>Nocturo is not running.</source>
            <translation>O Nocturo não está em execução.</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>Em pausa</translation>
        </message>
        <message>
            <source>Nocturo is not running; start it with: nocturo &amp;</source>
            <translation>O Nocturo não está em execução; inicie-o com: nocturo &amp;</translation>
        </message>
        <message>
            <source>The session bus failed: %@.</source>
            <translation>O barramento de sessão falhou: %@.</translation>
        </message>
        <message>
            <source>There is no session bus over which Nocturo could be reached; start it inside a desktop session with: nocturo &amp;</source>
            <translation>Não há barramento de sessão pelo qual alcançar o Nocturo; inicie-o dentro de uma sessão gráfica com: nocturo &amp;</translation>
        </message>
        <message>
            <source>The Nocturo that runs does not answer.</source>
            <translation>O Nocturo em execução não responde.</translation>
        </message>
        <message>
            <source>Nocturo did not do it: %@</source>
            <translation>O Nocturo não fez isso: %@</translation>
        </message>
        <message>
            <source>There is no setting "%@"; nocturoctl status --all lists them.</source>
            <translation>Não existe a configuração “%@”; nocturoctl status --all lista todas.</translation>
        </message>
        <message>
            <source>No hot key is chosen.</source>
            <translation>Nenhum atalho foi escolhido.</translation>
        </message>
        <message>
            <source>%@  (not enabled; nocturoctl hotkey enable)</source>
            <translation>%@  (não habilitado; nocturoctl hotkey enable)</translation>
        </message>
        <message>
            <source>%@  (not in force: another program holds it, or the desktop offers no hot keys)</source>
            <translation>%@  (sem efeito: outro programa o usa, ou o ambiente não oferece atalhos)</translation>
        </message>
        <message>
            <source>Name a file.</source>
            <translation>Indique um arquivo.</translation>
        </message>
        <message>
            <source>There is no such file: %@</source>
            <translation>Esse arquivo não existe: %@</translation>
        </message>
        <message>
            <source>No display is online.</source>
            <translation>Nenhuma tela está conectada.</translation>
        </message>
        <message>
            <source>The file "%@" cannot be written.</source>
            <translation>Não é possível gravar o arquivo “%@”.</translation>
        </message>
        <message>
            <source>Switch the effect on</source>
            <translation>Ativar o efeito</translation>
        </message>
        <message>
            <source>--fade has it come little by little, in up to 5 seconds.</source>
            <translation>Com --fade ele vem aos poucos, em até 5 segundos.</translation>
        </message>
        <message>
            <source>Switch the effect off</source>
            <translation>Desativar o efeito</translation>
        </message>
        <message>
            <source>Every display gets its own colors back.</source>
            <translation>Cada tela recupera suas próprias cores.</translation>
        </message>
        <message>
            <source>Switch the effect on or off</source>
            <translation>Ativar ou desativar o efeito</translation>
        </message>
        <message>
            <source>Bind this to a key. --fade has it come and go little by little, in up to 5 seconds.</source>
            <translation>Associe isto a uma tecla. Com --fade ele vem e vai aos poucos, em até 5 segundos.</translation>
        </message>
        <message>
            <source>Switch the effect off for a time</source>
            <translation>Desativar o efeito por um tempo</translation>
        </message>
        <message>
            <source>For so long, such as 30m, 2h or 1h30m; until 18:00, sunrise, tomorrow,
which is six in the morning, or next, the schedule's next point; while a command
runs; or until you switch the effect or say cancel.</source>
            <translation>Por esse tempo, como 30m, 2h ou 1h30m; until 18:00, sunrise (o nascer do sol), tomorrow,
que é seis da manhã, ou next, o próximo ponto da agenda; while, enquanto um comando roda;
ou até você alternar o efeito ou dizer cancel.</translation>
        </message>
        <message>
            <source>Show or change what happens by the clock and the sun</source>
            <translation>Mostrar ou mudar o que acontece pelo relógio e pelo sol</translation>
        </message>
        <message>
            <source>A POINT is a time and a look or off: 07:00 off, sunset-00:30 Warm evening. Instead of a
time of day it may have dawn, sunrise, sunset or dusk. list and next take --json.</source>
            <translation>POINT é um horário e um visual ou off: 07:00 off, sunset-00:30 Warm evening. Em vez de um
horário pode ter dawn, sunrise, sunset ou dusk. list e next aceitam --json.</translation>
        </message>
        <message>
            <source>Show or change what happens while programs are in front</source>
            <translation>Mostrar ou mudar o que acontece enquanto há programas na frente</translation>
        </message>
        <message>
            <source>A RULE is fullscreen, program NAME or game, and a look or off: fullscreen off,
program mpv Warm evening. The first one that holds for a display counts. list takes
--json.</source>
            <translation>Uma RULE é fullscreen, program NAME ou game, e um visual ou off: fullscreen off,
program mpv Warm evening. Vale a primeira que se aplica a uma tela. list aceita
--json.</translation>
        </message>
        <message>
            <source>Show the state of everything</source>
            <translation>Mostrar o estado de tudo</translation>
        </message>
        <message>
            <source>With --all, every setting as well; with --json, one object for programs; with --bar,
a line for a bar: waybar, polybar or i3status-rust. --follow prints another line at
each change, whether Nocturo runs or comes later.</source>
            <translation>Com --all, também todas as configurações; com --json, um objeto para programas; com --bar,
uma linha para uma barra: waybar, polybar ou i3status-rust. --follow imprime outra a cada
mudança, quer o Nocturo esteja em execução, quer venha depois.</translation>
        </message>
        <message>
            <source>List or choose the effects</source>
            <translation>Listar ou escolher os efeitos</translation>
        </message>
        <message>
            <source>NAME is invert, overexposure, dim, color-filter or hdtv-luminance, or a class
name. add, remove and toggle change the selection, only replaces it.</source>
            <translation>NAME é invert, overexposure, dim, color-filter ou hdtv-luminance, ou o nome de uma
classe. add, remove e toggle alteram a seleção, only a substitui.</translation>
        </message>
        <message>
            <source>Show the dim level, dim or lighten</source>
            <translation>Mostrar o nível, escurecer ou clarear</translation>
        </message>
        <message>
            <source>N% makes the picture darker by so much than it is by itself. +N% and -N% are steps: they
make it lighter and darker than it is now, and print what it is then. =LEVEL% is what
the window shows, from =-100% (black) over =0% to =100% (white).</source>
            <translation>N% escurece a imagem tanto em relação a como ela é por si. +N% e -N% são passos: deixam-na
mais clara e mais escura do que agora e imprimem como fica. =NÍVEL% é o que a janela
mostra, de =-100% (preto) passando por =0% até =100% (branco).</translation>
        </message>
        <message>
            <source>Show or choose hue and vividness of the color filter</source>
            <translation>Mostrar ou escolher o matiz e a vivacidade do filtro de cor</translation>
        </message>
        <message>
            <source>HUE is in degrees: 0 red, 25 orange, 120 green, 240 blue. +N and -N go so far from
what is there.</source>
            <translation>HUE é em graus: 0 vermelho, 25 laranja, 120 verde, 240 azul. +N e -N partem do que
está lá.</translation>
        </message>
        <message>
            <source>Show or choose a color temperature</source>
            <translation>Mostrar ou escolher uma temperatura de cor</translation>
        </message>
        <message>
            <source>From 1000 (candle) over 6500 (neutral) to 25000 (blue sky), as hue and vividness of the
color filter, which is chosen. +N and -N go so far from the one in force.</source>
            <translation>De 1000 (vela), passando por 6500 (neutra), a 25000 (céu azul), como matiz e vividez
do filtro de cor, que fica escolhido. +N e -N partem da vigente.</translation>
        </message>
        <message>
            <source>Show, choose or keep a combination of effects</source>
            <translation>Mostrar, escolher ou guardar uma combinação de efeitos</translation>
        </message>
        <message>
            <source>list [--json]      all of them, those that come with Nocturo and your own
next, previous     the one after or before the one in force
back               what the last look replaced
save NAME          keep the effects as a look of your own
rename NAME NEW, delete NAME, move NAME PLACE</source>
            <translation>list [--json]      todos, os que vêm com o Nocturo e os próprios
next, previous     o seguinte ou o anterior ao vigente
back               o que o último visual substituiu
save NAME          guardar os efeitos como visual próprio
rename NAME NEW, delete NAME, move NAME PLACE</translation>
        </message>
        <message>
            <source>Show a setting</source>
            <translation>Mostrar uma configuração</translation>
        </message>
        <message>
            <source>nocturoctl status --all lists the keys.</source>
            <translation>nocturoctl status --all lista as chaves.</translation>
        </message>
        <message>
            <source>Change a setting</source>
            <translation>Alterar uma configuração</translation>
        </message>
        <message>
            <source>VALUE is true or false, a number, or a list with commas, as the setting takes it.
For example: nocturoctl set NDDimEffectLevel -30%. Numbers beyond the range and displays
that are not there are refused without --force.</source>
            <translation>VALUE é true ou false, um número ou uma lista com vírgulas, conforme a configuração.
Por exemplo: nocturoctl set NDDimEffectLevel -30%. Números fora da faixa e telas que não
existem são recusados sem --force.</translation>
        </message>
        <message>
            <source>Change a number by so much</source>
            <translation>Alterar um número nessa medida</translation>
        </message>
        <message>
            <source>As far as its range goes. For example: nocturoctl step NDDimEffectLevel -5%</source>
            <translation>Até onde vai sua faixa. Por exemplo: nocturoctl step NDDimEffectLevel -5%</translation>
        </message>
        <message>
            <source>Give a setting its default value again</source>
            <translation>Devolver a uma configuração o valor padrão</translation>
        </message>
        <message>
            <source>List or choose the affected displays</source>
            <translation>Listar ou escolher as telas afetadas</translation>
        </message>
        <message>
            <source>DISPLAY is its number in the list, its name or its identifier. only chooses these
alone; toggle puts each into the set of affected displays or takes it out. An
empty set means all displays, which is also what all chooses. look gives a display a
look of its own; - takes it away.</source>
            <translation>DISPLAY é seu número na lista, seu nome ou seu identificador. only escolhe só essas;
toggle põe cada uma no conjunto das telas afetadas ou a retira dele. Um conjunto
vazio significa todas as telas, que é também o que all escolhe. look dá a
uma tela um visual próprio; - o retira.</translation>
        </message>
        <message>
            <source>Show or choose the global hot key</source>
            <translation>Mostrar ou escolher o atalho global</translation>
        </message>
        <message>
            <source>KEYS is one key and any of ctrl, alt (or option), shift and super (or command),
such as 'ctrl+super+F5' or 'alt+shift+k'. The hot key toggles the effect while it
is enabled. Keys are what they type, and f1 to f20, left, right, up, down, home,
end, pageup, pagedown, insert, delete, backspace, tab, space, return, escape,
menu, volumeup, volumedown, mute, eisu, kana, keypad0 to keypad9, keypadplus,
keypadminus, keypadmultiply, keypaddivide, keypaddecimal, keypadcomma,
keypadequals, keypadenter and keypadclear.</source>
            <translation>KEYS é uma tecla com quaisquer de ctrl, alt (ou option), shift e super (ou command), como
'ctrl+super+F5' ou 'alt+shift+k'. O atalho alterna o efeito enquanto estiver habilitado. As
teclas são o que elas digitam, e f1 a f20, left, right, up, down, home,
end, pageup, pagedown, insert, delete, backspace, tab, space, return, escape,
menu, volumeup, volumedown, mute, eisu, kana, keypad0 a keypad9, keypadplus,
keypadminus, keypadmultiply, keypaddivide, keypaddecimal, keypadcomma,
keypadequals, keypadenter e keypadclear.</translation>
        </message>
        <message>
            <source>Take the effects from a document</source>
            <translation>Obter os efeitos de um documento</translation>
        </message>
        <message>
            <source>Save the effects as a document</source>
            <translation>Salvar os efeitos como documento</translation>
        </message>
        <message>
            <source>Draw what the effects do</source>
            <translation>Desenhar o que os efeitos fazem</translation>
        </message>
        <message>
            <source>The curves of a display, of the main one unless told otherwise, and a scene seen
through them, as a PNG picture. N is its number, name or identifier.</source>
            <translation>As curvas de uma tela, a principal se nada for indicado, e uma cena vista através
delas, como imagem PNG. N é seu número, nome ou identificador.</translation>
        </message>
        <message>
            <source>Show the preference window</source>
            <translation>Mostrar a janela de preferências</translation>
        </message>
        <message>
            <source>Show the about box</source>
            <translation>Mostrar a janela Sobre</translation>
        </message>
        <message>
            <source>Print every change as it happens</source>
            <translation>Mostrar cada mudança quando acontece</translation>
        </message>
        <message>
            <source>One JSON object a line: first the whole state, then what changed. Ends when Nocturo
does.</source>
            <translation>Um objeto JSON por linha: primeiro o estado inteiro, depois o que mudou. Termina quando o
Nocturo termina.</translation>
        </message>
        <message>
            <source>Give every display its own colors back</source>
            <translation>Devolver a cada tela suas próprias cores</translation>
        </message>
        <message>
            <source>Whether Nocturo runs, answers or was killed, and without a session bus as well. Where
nothing is known of a display's own colors it gets plain ones.</source>
            <translation>Quer o Nocturo esteja em execução, responda ou tenha sido morto, e mesmo sem
barramento de sessão. Uma tela cujas cores não se conhecem recebe cores neutras.</translation>
        </message>
        <message>
            <source>Give the displays back and end Nocturo</source>
            <translation>Devolver as telas e encerrar o Nocturo</translation>
        </message>
        <message>
            <source>%@  (the color filter is not chosen)</source>
            <translation>%@  (o filtro de cor não está escolhido)</translation>
        </message>
        <message>
            <source>"%1$@" takes a number from %2$@ to %3$@.</source>
            <translation>“%1$@” aceita um número de %2$@ a %3$@.</translation>
        </message>
        <message>
            <source>%@  (dim is not chosen)</source>
            <translation>%@  (escurecer não está escolhido)</translation>
        </message>
        <message>
            <source>Nocturo has ended.</source>
            <translation>O Nocturo foi encerrado.</translation>
        </message>
        <message>
            <source>nocturoctl %@ --help tells more.</source>
            <translation>nocturoctl %@ --help diz mais.</translation>
        </message>
        <message>
            <source>Usage: %@</source>
            <translation>Uso: %@</translation>
        </message>
        <message>
            <source>Drives the Nocturo that runs in this session.</source>
            <translation>Controla o Nocturo em execução nesta sessão.</translation>
        </message>
        <message>
            <source>With --keep, colors that leave every screen hard to read stay. Without it they go back
after ten seconds, unless somebody keeps them.</source>
            <translation>Com --keep ficam as cores com que nenhuma tela se lê bem. Sem --keep elas voltam
atrás após dez segundos, a menos que alguém as mantenha.</translation>
        </message>
        <message>
            <source>Exit status: 0 done, 1 failed, 2 not understood, 3 Nocturo is not running.</source>
            <translation>Código de saída: 0 feito, 1 falha, 2 não entendido, 3 o Nocturo não está em execução.</translation>
        </message>
        <message>
            <source>Say what to do; nocturoctl --help lists the verbs.</source>
            <translation>Diga o que fazer; nocturoctl --help lista os verbos.</translation>
        </message>
        <message>
            <source>There is no verb "%@"; nocturoctl --help lists them.</source>
            <translation>Não existe o verbo “%@”; nocturoctl --help os lista.</translation>
        </message>
        <message>
            <source>The answer cannot be written: %@.</source>
            <translation>Não é possível escrever a resposta: %@.</translation>
        </message>
        <message>
            <source>"%1$@" cannot be started: %2$@.</source>
            <translation>Não é possível iniciar "%1$@": %2$@.</translation>
        </message>
        <message>
            <source>no ramp, or another program has it</source>
            <translation>sem rampa, ou em uso por outro programa</translation>
        </message>
        <message>
            <source>cannot be given a color profile</source>
            <translation>não aceita perfil de cores</translation>
        </message>
        <message>
            <source>in HDR mode</source>
            <translation>no modo HDR</translation>
        </message>
        <message>
            <source>refused by the desktop</source>
            <translation>recusado pelo ambiente</translation>
        </message>
        <message>
            <source>yes</source>
            <translation>sim</translation>
        </message>
        <message>
            <source>no</source>
            <translation>não</translation>
        </message>
        <message>
            <source>(none)</source>
            <translation>(nenhum)</translation>
        </message>
        <message>
            <source>%@ (not enabled)</source>
            <translation>%@ (não habilitado)</translation>
        </message>
        <message>
            <source>%@ (not in force)</source>
            <translation>%@ (sem efeito)</translation>
        </message>
        <message>
            <source>Another program</source>
            <translation>Outro programa</translation>
        </message>
        <message>
            <source>%@ changes the colors too: found once since Nocturo was started.</source>
            <translation>%@ também altera as cores: detectado uma vez desde o início do Nocturo.</translation>
        </message>
        <message>
            <source>%@ changes the colors too: found %d times since Nocturo was started.</source>
            <translation>%@ também altera as cores: detectado %d vezes desde o início do Nocturo.</translation>
        </message>
        <message>
            <source>look</source>
            <translation>visual</translation>
        </message>
        <message>
            <source>dim level</source>
            <translation>nível de escurecimento</translation>
        </message>
        <message>
            <source>color filter hue</source>
            <translation>matiz do filtro de cor</translation>
        </message>
        <message>
            <source>color filter vividness</source>
            <translation>vividez do filtro de cor</translation>
        </message>
        <message>
            <source>hot key</source>
            <translation>atalho de teclado</translation>
        </message>
        <message>
            <source>display services</source>
            <translation>origem das telas</translation>
        </message>
        <message>
            <source>Displays</source>
            <translation>Telas</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>Configurações</translation>
        </message>
        <message>
            <source>no.</source>
            <translation>nº</translation>
        </message>
        <message>
            <source>name</source>
            <translation>nome</translation>
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
            <translation>nenhuma</translation>
        </message>
        <message>
            <source>main</source>
            <translation>principal</translation>
        </message>
        <message>
            <source>not connected</source>
            <translation>não conectada</translation>
        </message>
        <message>
            <source>own</source>
            <translation>próprio</translation>
        </message>
        <message>
            <source>Nocturo has switched its effect off and given the displays back.</source>
            <translation>O Nocturo desativou seu efeito e devolveu as telas.</translation>
        </message>
        <message>
            <source>The displays have been given back, but a Nocturo that does not answer still runs and may change them again.</source>
            <translation>As telas foram devolvidas, mas um Nocturo que não responde ainda está em execução e pode alterá-las de novo.</translation>
        </message>
        <message>
            <source>The displays have their own colors back, as they were before Nocturo changed them.</source>
            <translation>As telas recuperaram suas próprias cores, como estavam antes de o Nocturo alterá-las.</translation>
        </message>
        <message>
            <source>Nocturo has left no display changed, so nothing was done.</source>
            <translation>O Nocturo não deixou nenhuma tela alterada; por isso, nada foi feito.</translation>
        </message>
        <message>
            <source>The displays have plain colors now, or those of their color profiles.</source>
            <translation>As telas têm agora cores neutras, ou as de seus perfis de cores.</translation>
        </message>
        <message>
            <source>The desktop does not take the color profiles of the displays back; choose them in its settings.</source>
            <translation>O ambiente não aceita de volta os perfis de cores das telas; escolha-os nas configurações dele.</translation>
        </message>
        <message>
            <source>%@ does not tell Nocturo of its displays.</source>
            <translation>%@ não informa suas telas ao Nocturo.</translation>
        </message>
        <message>
            <source>There is no X server whose displays could be given back, because DISPLAY is not set.</source>
            <translation>Não há servidor X cujas telas possam ser devolvidas, porque DISPLAY não está definida.</translation>
        </message>
        <message>
            <source>The X server %@ does not answer.</source>
            <translation>O servidor X %@ não responde.</translation>
        </message>
        <message>
            <source>The compositor %@ does not answer.</source>
            <translation>O compositor %@ não responde.</translation>
        </message>
        <message>
            <source>%@ is in front</source>
            <translation>%@ está na frente</translation>
        </message>
        <message>
            <source>a game is running</source>
            <translation>há um jogo em execução</translation>
        </message>
        <message>
            <source>a window fills %@</source>
            <translation>uma janela ocupa %@</translation>
        </message>
        <message>
            <source>The rules are not in use; nocturoctl rules on changes that.</source>
            <translation>As regras não estão em uso; nocturoctl rules on muda isso.</translation>
        </message>
        <message>
            <source>The schedule is not in use; nocturoctl schedule on changes that.</source>
            <translation>A agenda não está em uso; nocturoctl schedule on muda isso.</translation>
        </message>
        <message>
            <source>Nothing is scheduled.</source>
            <translation>Nada está agendado.</translation>
        </message>
        <message>
            <source>There is no display "%@"; nocturoctl screens lists their numbers, names and identifiers.</source>
            <translation>Não existe a tela “%@”; nocturoctl screens lista números, nomes e identificadores.</translation>
        </message>
        <message>
            <source>There is no effect "%@"; the effects are %@.</source>
            <translation>Não existe o efeito “%@”; os efeitos são %@.</translation>
        </message>
        <message>
            <source>About %@</source>
            <translation>Sobre o %@</translation>
        </message>
        <message>
            <source>Version %@</source>
            <translation>Versão %@</translation>
        </message>
        <message>
            <source>Credits.html</source>
            <translation>Credits_pt_BR.html</translation>
        </message>
        <message>
            <source>Nocturo User Guide</source>
            <translation>Guia do usuário do Nocturo</translation>
        </message>
        <message>
            <source>%@ is held by another program. Choose another hot key.</source>
            <translation>%@ está em uso por outro programa. Escolha outro atalho.</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>Copiar</translation>
        </message>
        <message>
            <source>Change...</source>
            <translation>Alterar...</translation>
        </message>
        <message>
            <source>Ask</source>
            <translation>Perguntar</translation>
        </message>
        <message>
            <source>Hot key</source>
            <translation>Atalho de teclado</translation>
        </message>
        <message>
            <source>Press the new hot key, with Ctrl, Alt or Super, or Escape to leave it as it was.</source>
            <translation>Pressione o novo atalho, com Ctrl, Alt ou Super, ou Esc para deixá-lo como estava.</translation>
        </message>
        <message>
            <source>Click or press Space to record another shortcut.</source>
            <translation>Clique ou pressione Espaço para gravar outro atalho.</translation>
        </message>
        <message>
            <source>With Ctrl, Alt or Super</source>
            <translation>Com Ctrl, Alt ou Super</translation>
        </message>
        <message>
            <source>Press keys, Esc cancels</source>
            <translation>Pressione teclas, Esc cancela</translation>
        </message>
        <message>
            <source>Save as a look...</source>
            <translation>Salvar como visual...</translation>
        </message>
        <message>
            <source>Keeps the effects under a name of your own</source>
            <translation>Guarda os efeitos com um nome seu</translation>
        </message>
        <message>
            <source>Change</source>
            <translation>Alterar</translation>
        </message>
        <message>
            <source>Renames, moves or deletes the look that is marked</source>
            <translation>Renomeia, move ou exclui o visual marcado</translation>
        </message>
        <message>
            <source>A click puts a look on the screens, another one takes it away</source>
            <translation>Um clique aplica um visual às telas, outro o retira</translation>
        </message>
        <message>
            <source>Rename...</source>
            <translation>Renomear...</translation>
        </message>
        <message>
            <source>Move to the front</source>
            <translation>Para o início</translation>
        </message>
        <message>
            <source>Move to the back</source>
            <translation>Para o fim</translation>
        </message>
        <message>
            <source>Delete...</source>
            <translation>Excluir...</translation>
        </message>
        <message>
            <source>Save as a look</source>
            <translation>Salvar como visual</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salvar</translation>
        </message>
        <message>
            <source>Rename Look</source>
            <translation>Renomear visual</translation>
        </message>
        <message>
            <source>Rename</source>
            <translation>Renomear</translation>
        </message>
        <message>
            <source>Delete the look "%@"?</source>
            <translation>Excluir o visual “%@”?</translation>
        </message>
        <message>
            <source>It will be missed by: %@.</source>
            <translation>Fará falta a: %@.</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Excluir</translation>
        </message>
        <message>
            <source>Name:</source>
            <translation>Nome:</translation>
        </message>
        <message>
            <source>There is a look "%@" already.</source>
            <translation>Já existe um visual “%@”.</translation>
        </message>
        <message>
            <source>Replace</source>
            <translation>Substituir</translation>
        </message>
        <message>
            <source>This desktop shows no tray at the moment; Nocturo can be reached through the applications menu.</source>
            <translation>Este ambiente de trabalho não mostra nenhuma bandeja no momento; o Nocturo pode ser acessado pelo menu de aplicativos.</translation>
        </message>
        <message>
            <source>“%@” is not an effect document.</source>
            <translation>“%@” não é um documento de efeito.</translation>
        </message>
        <message>
            <source>Opening failed</source>
            <translation>Falha ao abrir</translation>
        </message>
        <message>
            <source>&amp;Effect</source>
            <translation>&amp;Efeito</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>&amp;Arquivo</translation>
        </message>
        <message>
            <source>&amp;Open...</source>
            <translation>&amp;Abrir…</translation>
        </message>
        <message>
            <source>Open &amp;Recent</source>
            <translation>Abrir &amp;recente</translation>
        </message>
        <message>
            <source>&amp;Clear Menu</source>
            <translation>&amp;Limpar menu</translation>
        </message>
        <message>
            <source>&amp;Save...</source>
            <translation>&amp;Salvar…</translation>
        </message>
        <message>
            <source>&amp;Preferences...</source>
            <translation>&amp;Preferências…</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>&amp;Fechar</translation>
        </message>
        <message>
            <source>&amp;Quit Nocturo</source>
            <translation>Sair do &amp;Nocturo</translation>
        </message>
        <message>
            <source>&amp;Help</source>
            <translation>A&amp;juda</translation>
        </message>
        <message>
            <source>User &amp;Guide</source>
            <translation>&amp;Guia do usuário</translation>
        </message>
        <message>
            <source>&amp;About Nocturo</source>
            <translation>&amp;Sobre o Nocturo</translation>
        </message>
        <message>
            <source>red</source>
            <translation>vermelho</translation>
        </message>
        <message>
            <source>orange</source>
            <translation>laranja</translation>
        </message>
        <message>
            <source>yellow</source>
            <translation>amarelo</translation>
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
            <translation>verde-mar</translation>
        </message>
        <message>
            <source>cyan</source>
            <translation>ciano</translation>
        </message>
        <message>
            <source>azure</source>
            <translation>azul-celeste</translation>
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
            <translation>lâmpada</translation>
        </message>
        <message>
            <source>sunset</source>
            <translation>pôr do sol</translation>
        </message>
        <message>
            <source>daylight</source>
            <translation>luz do dia</translation>
        </message>
        <message>
            <source>The screens are hard to read now. They go back by themselves in %d s.</source>
            <translation>As telas estão difíceis de ler agora. As cores anteriores voltarão sozinhas em %d s.</translation>
        </message>
        <message>
            <source>Keep these colors?</source>
            <translation>Manter estas cores?</translation>
        </message>
        <message>
            <source>&amp;Keep</source>
            <translation>&amp;Manter</translation>
        </message>
        <message>
            <source>&amp;Go back</source>
            <translation>&amp;Reverter</translation>
        </message>
        <message>
            <source>Close anyway</source>
            <translation>Fechar mesmo assim</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message>
            <source>Nocturo effects</source>
            <translation>Efeitos do Nocturo</translation>
        </message>
        <message>
            <source>Save Effect</source>
            <translation>Salvar efeito</translation>
        </message>
        <message>
            <source>&amp;Hide extension</source>
            <translation>Oc&amp;ultar a extensão</translation>
        </message>
        <message>
            <source>Saving failed</source>
            <translation>Falha ao salvar</translation>
        </message>
        <message>
            <source>Could not save settings at this location.</source>
            <translation>Não foi possível salvar as configurações neste local.</translation>
        </message>
        <message>
            <source>Open Effect</source>
            <translation>Abrir efeito</translation>
        </message>
        <message>
            <source>As all screens</source>
            <translation>Como todas as telas</translation>
        </message>
        <message>
            <source> %</source>
            <translation>%</translation>
        </message>
        <message>
            <source> s</source>
            <translation> s</translation>
        </message>
        <message>
            <source>at once</source>
            <translation>na hora</translation>
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
            <translation>Entrada</translation>
        </message>
        <message>
            <source>Output</source>
            <translation>Saída</translation>
        </message>
        <message>
            <source>The colors of this screen cannot be changed.</source>
            <translation>As cores desta tela não podem ser alteradas.</translation>
        </message>
        <message>
            <source>Before</source>
            <translation>Antes</translation>
        </message>
        <message>
            <source>With effect</source>
            <translation>Com o efeito</translation>
        </message>
        <message>
            <source>Clipped</source>
            <translation>Cortado</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Pré-visualização</translation>
        </message>
        <message>
            <source>brightness from %@ to %@</source>
            <translation>brilho de %@ a %@</translation>
        </message>
        <message>
            <source>%@ strongest</source>
            <translation>predomina o %@</translation>
        </message>
        <message>
            <source>%@ and %@ strongest</source>
            <translation>predominam o %@ e o %@</translation>
        </message>
        <message>
            <source>inverted</source>
            <translation>cores invertidas</translation>
        </message>
        <message>
            <source>bright tones clipped</source>
            <translation>tons claros cortados</translation>
        </message>
        <message>
            <source>dark tones clipped</source>
            <translation>tons escuros cortados</translation>
        </message>
        <message>
            <source>almost nothing can be told apart</source>
            <translation>quase nada se distingue</translation>
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
            <translation>Escolher visuais pelo que está na &amp;frente</translation>
        </message>
        <message>
            <source>Rules</source>
            <translation>Regras</translation>
        </message>
        <message>
            <source>Of the rules that hold for a screen the first one counts.</source>
            <translation>Das regras que valem para uma tela, conta a primeira.</translation>
        </message>
        <message>
            <source>As its windows are called</source>
            <translation>Como suas janelas se chamam</translation>
        </message>
        <message>
            <source>P&amp;ick a window</source>
            <translation>Escolher uma ja&amp;nela</translation>
        </message>
        <message>
            <source>The next window that comes to the front tells its program</source>
            <translation>A próxima janela que vier para a frente indica seu programa</translation>
        </message>
        <message>
            <source>&amp;When:</source>
            <translation>&amp;Quando:</translation>
        </message>
        <message>
            <source>&amp;Program:</source>
            <translation>&amp;Programa:</translation>
        </message>
        <message>
            <source>&amp;Look:</source>
            <translation>&amp;Visual:</translation>
        </message>
        <message>
            <source>&amp;Add</source>
            <translation>A&amp;dicionar</translation>
        </message>
        <message>
            <source>&amp;Remove</source>
            <translation>Re&amp;mover</translation>
        </message>
        <message>
            <source>Move the rule up</source>
            <translation>Mover a regra para cima</translation>
        </message>
        <message>
            <source>Move the rule down</source>
            <translation>Mover a regra para baixo</translation>
        </message>
        <message>
            <source>A window fills a screen</source>
            <translation>Uma janela ocupa toda uma tela</translation>
        </message>
        <message>
            <source>A program is in front</source>
            <translation>Um programa está na frente</translation>
        </message>
        <message>
            <source>A game is running</source>
            <translation>Um jogo está em execução</translation>
        </message>
        <message>
            <source>No rule holds now.</source>
            <translation>Nenhuma regra vale agora.</translation>
        </message>
        <message>
            <source>Now: %@</source>
            <translation>Agora: %@</translation>
        </message>
        <message>
            <source>Now click a window of the program.</source>
            <translation>Agora clique em uma janela do programa.</translation>
        </message>
        <message>
            <source> min</source>
            <translation> min</translation>
        </message>
        <message>
            <source>&amp;Choose looks by the clock and the sun</source>
            <translation>Escolher visuais pelo relógio e pelo so&amp;l</translation>
        </message>
        <message>
            <source>Pa&amp;use</source>
            <translation>&amp;Pausa</translation>
        </message>
        <message>
            <source>A pause gives the screens their own colors for a while.</source>
            <translation>Uma pausa devolve às telas as próprias cores por um tempo.</translation>
        </message>
        <message>
            <source>Resu&amp;me</source>
            <translation>C&amp;ontinuar</translation>
        </message>
        <message>
            <source>Latitude and longitude, such as 52.5 13.4; by the time zone where empty</source>
            <translation>Latitude e longitude, como 52.5 13.4; vazio: pelo fuso horário</translation>
        </message>
        <message>
            <source>How long the colors take to change when a point comes</source>
            <translation>Quanto tempo as cores levam para mudar quando chega um ponto</translation>
        </message>
        <message>
            <source>&amp;Place of the sun:</source>
            <translation>L&amp;ugar do sol:</translation>
        </message>
        <message>
            <source>Change o&amp;ver:</source>
            <translation>&amp;Transição:</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Agenda</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Hora</translation>
        </message>
        <message>
            <source>Dawn</source>
            <translation>Alvorada</translation>
        </message>
        <message>
            <source>Sunrise</source>
            <translation>Nascer do sol</translation>
        </message>
        <message>
            <source>Sunset</source>
            <translation>Pôr do sol</translation>
        </message>
        <message>
            <source>Dusk</source>
            <translation>Anoitecer</translation>
        </message>
        <message>
            <source>Minutes before or after the sun</source>
            <translation>Minutos antes ou depois do sol</translation>
        </message>
        <message>
            <source>Next: %1$@ at %2$@</source>
            <translation>A seguir: %1$@ às %2$@</translation>
        </message>
        <message>
            <source>Not in use.</source>
            <translation>Não está em uso.</translation>
        </message>
        <message>
            <source>Paused until %1$@, %2$@ h left</source>
            <translation>Em pausa até %1$@, faltam %2$@ h</translation>
        </message>
        <message>
            <source>To see what the effects do, start it with --display-services=simulated.</source>
            <translation>Para ver o que os efeitos fazem, inicie-o com --display-services=simulated.</translation>
        </message>
        <message>
            <source>%@ offers Nocturo no way to change the colors of displays under Wayland.</source>
            <translation>%@ não oferece ao Nocturo um meio de mudar as cores das telas no Wayland.</translation>
        </message>
        <message>
            <source>This desktop</source>
            <translation>Este ambiente</translation>
        </message>
        <message>
            <source>There is no X server to work with, because DISPLAY is not set.</source>
            <translation>Não há servidor X para usar, porque DISPLAY não está definida.</translation>
        </message>
        <message>
            <source>Another Nocturo drives the displays of the X server %@.</source>
            <translation>Outro Nocturo controla as telas do servidor X %@.</translation>
        </message>
        <message>
            <source>Another Nocturo drives the displays of %@.</source>
            <translation>Outro Nocturo controla as telas de %@.</translation>
        </message>
        <message>
            <source>Neither GNOME nor Cinnamon is on the session bus.</source>
            <translation>Nem o GNOME nem o Cinnamon estão no barramento da sessão.</translation>
        </message>
        <message>
            <source>No Wayland compositor answers.</source>
            <translation>Nenhum compositor Wayland responde.</translation>
        </message>
        <message>
            <source>Plasma 5 offers Nocturo no way to change the colors of displays under Wayland; choose its X11 session when logging in, or use Plasma 6.</source>
            <translation>O Plasma 5 não oferece ao Nocturo nenhum meio de mudar as cores das telas no Wayland; escolha a sessão X11 dele ao entrar ou use o Plasma 6.</translation>
        </message>
        <message>
            <source>Displays are simulated; their pictures are in %@.</source>
            <translation>As telas são simuladas; suas imagens estão em %@.</translation>
        </message>
        <message>
            <source>The X server %@ is only a guest of a Wayland session and cannot change its colors; displays under Wayland come with a later version.</source>
            <translation>O servidor X %@ é apenas um convidado de uma sessão Wayland e não pode alterar suas cores; as telas no Wayland virão em uma versão posterior.</translation>
        </message>
        <message>
            <source>The X server %@ has no RandR 1.3 or later.</source>
            <translation>O servidor X %@ não tem RandR 1.3 ou posterior.</translation>
        </message>
        <message>
            <source>The X server %@ cannot be reached.</source>
            <translation>Não é possível acessar o servidor X %@.</translation>
        </message>
        <message>
            <source>There are no looks.</source>
            <translation>Não há visuais.</translation>
        </message>
        <message>
            <source>No look was applied from which one could go back.</source>
            <translation>Nenhum visual foi aplicado do qual se possa voltar.</translation>
        </message>
        <message>
            <source>Night reading</source>
            <translation>Leitura noturna</translation>
        </message>
        <message>
            <source>Warm evening</source>
            <translation>Noite aconchegante</translation>
        </message>
        <message>
            <source>Red night vision</source>
            <translation>Visão noturna vermelha</translation>
        </message>
        <message>
            <source>Just dimmer</source>
            <translation>Apenas mais escuro</translation>
        </message>
        <message>
            <source>Paper tint</source>
            <translation>Tom de papel</translation>
        </message>
        <message>
            <source>"%@" cannot be the name of a look.</source>
            <translation>“%@” não pode ser o nome de um visual.</translation>
        </message>
        <message>
            <source>The look "%@" comes with Nocturo and stays as it is.</source>
            <translation>O visual “%@” vem com o Nocturo e permanece como está.</translation>
        </message>
        <message>
            <source>This desktop takes hot keys from its own settings. Add a shortcut for this command there:</source>
            <translation>Esta área de trabalho usa os atalhos de suas próprias configurações. Adicione lá um atalho para este comando:</translation>
        </message>
        <message>
            <source>This desktop takes hot keys from its own configuration. Put this line there:</source>
            <translation>Esta área de trabalho usa os atalhos de seu próprio arquivo de configuração. Coloque lá esta linha:</translation>
        </message>
        <message>
            <source>The desktop is asked whether Nocturo may have it.</source>
            <translation>A área de trabalho está sendo consultada se o Nocturo pode usá-lo.</translation>
        </message>
        <message>
            <source>This desktop has not been asked for it yet.</source>
            <translation>Ele ainda não foi pedido a esta área de trabalho.</translation>
        </message>
        <message>
            <source>The desktop has refused it.</source>
            <translation>A área de trabalho o recusou.</translation>
        </message>
        <message>
            <source>The desktop has it as %@; its own settings change that.</source>
            <translation>A área de trabalho o registrou como %@; isso se altera nas configurações dela.</translation>
        </message>
        <message>
            <source>A hot key is one key and any of ctrl, alt, shift and super, joined by +, such as ctrl+super+F5; nocturoctl hotkey --help lists the keys.</source>
            <translation>Um atalho é uma tecla com quaisquer de ctrl, alt, shift e super, unidas por +, como ctrl+super+F5; nocturoctl hotkey --help lista as teclas.</translation>
        </message>
        <message>
            <source>No hot key was given.</source>
            <translation>Nenhum atalho foi indicado.</translation>
        </message>
        <message>
            <source>"%@" has a plus sign with nothing before or after it.</source>
            <translation>“%@” tem um sinal de mais sem nada antes ou depois.</translation>
        </message>
        <message>
            <source>"%@" and "%@" are both keys, but a hot key has only one.</source>
            <translation>“%@” e “%@” são ambas teclas, mas um atalho só tem uma.</translation>
        </message>
        <message>
            <source>"%@" has no key besides its modifiers.</source>
            <translation>“%@” não tem nenhuma tecla além das modificadoras.</translation>
        </message>
        <message>
            <source>"%@" is not a key's name, and no key of the current keyboard layout types it.</source>
            <translation>“%@” não é nome de tecla, e nenhuma tecla do layout atual o digita.</translation>
        </message>
        <message>
            <source>"%@" is not a key's name, and the keyboard layout that could tell which key types it cannot be read.</source>
            <translation>“%@” não é nome de tecla, e o layout de teclado que diria qual tecla o digita não pode ser lido.</translation>
        </message>
        <message>
            <source>"%@" needs a modifier: only function, arrow and navigation keys can be hot keys alone.</source>
            <translation>“%@” precisa de uma modificadora: só teclas de função, de seta e de navegação podem ser atalhos sozinhas.</translation>
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
            <translation>Shift</translation>
        </message>
        <message>
            <source>Super</source>
            <translation>Super</translation>
        </message>
        <message>
            <source>Return</source>
            <translation>Enter</translation>
        </message>
        <message>
            <source>Tab</source>
            <translation>Tab</translation>
        </message>
        <message>
            <source>Space</source>
            <translation>Espaço</translation>
        </message>
        <message>
            <source>Backspace</source>
            <translation>Backspace</translation>
        </message>
        <message>
            <source>Esc</source>
            <translation>Esc</translation>
        </message>
        <message>
            <source>Volume Up</source>
            <translation>Aumentar volume</translation>
        </message>
        <message>
            <source>Volume Down</source>
            <translation>Diminuir volume</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>Mudo</translation>
        </message>
        <message>
            <source>Menu</source>
            <translation>Menu</translation>
        </message>
        <message>
            <source>Ins</source>
            <translation>Insert</translation>
        </message>
        <message>
            <source>Home</source>
            <translation>Home</translation>
        </message>
        <message>
            <source>Page Up</source>
            <translation>Page Up</translation>
        </message>
        <message>
            <source>Del</source>
            <translation>Delete</translation>
        </message>
        <message>
            <source>End</source>
            <translation>End</translation>
        </message>
        <message>
            <source>Page Down</source>
            <translation>Page Down</translation>
        </message>
        <message>
            <source>Left</source>
            <translation>Esquerda</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>Direita</translation>
        </message>
        <message>
            <source>Down</source>
            <translation>Para baixo</translation>
        </message>
        <message>
            <source>Up</source>
            <translation>Para cima</translation>
        </message>
        <message>
            <source>Activate or Deactivate Effect</source>
            <translation>Ativar ou desativar o efeito</translation>
        </message>
        <message>
            <source>Windows come with the package nocturo-desktop, which is not installed.</source>
            <translation>As janelas vêm com o pacote nocturo-desktop, que não está instalado.</translation>
        </message>
        <message>
            <source>Windows cannot be shown: %@.</source>
            <translation>Não é possível mostrar janelas: %@.</translation>
        </message>
        <message>
            <source>Windows cannot be shown before Nocturo is started again, because another version was installed meanwhile.</source>
            <translation>As janelas só podem ser mostradas depois de reiniciar o Nocturo, porque outra versão foi instalada nesse meio-tempo.</translation>
        </message>
        <message>
            <source>The display server has gone, so Nocturo ends.</source>
            <translation>O servidor gráfico desapareceu, por isso o Nocturo será encerrado.</translation>
        </message>
        <message>
            <source>Nocturo is already running.</source>
            <translation>O Nocturo já está em execução.</translation>
        </message>
        <message>
            <source>The runtime directory cannot be used; set XDG_RUNTIME_DIR to one of yours.</source>
            <translation>O diretório de execução não pode ser usado; defina em XDG_RUNTIME_DIR um diretório seu.</translation>
        </message>
        <message>
            <source>Nocturo starts switched off, because nocturoctl restore gave the displays back.</source>
            <translation>O Nocturo inicia desativado porque nocturoctl restore devolveu as telas.</translation>
        </message>
        <message>
            <source>Nocturo starts switched off.</source>
            <translation>O Nocturo inicia desativado.</translation>
        </message>
        <message>
            <source>Changes how whole screens look: inverted, overexposed, dimmed or lightened, in
the HDTV range or through a color filter. Runs until it is told to quit, and
gives every display back then. Drive it with nocturoctl.</source>
            <translation>Muda a aparência de telas inteiras: invertidas, superexpostas, escurecidas ou
clareadas, na faixa HDTV ou através de um filtro de cor. Executa até que se peça
para sair e então devolve cada tela. É controlado com o nocturoctl.</translation>
        </message>
        <message>
            <source>Options:</source>
            <translation>Opções:</translation>
        </message>
        <message>
            <source>where the displays come from:</source>
            <translation>de onde vêm as telas:</translation>
        </message>
        <message>
            <source>what this session offers (default)</source>
            <translation>o que esta sessão oferecer (padrão)</translation>
        </message>
        <message>
            <source>an X server</source>
            <translation>um servidor X</translation>
        </message>
        <message>
            <source>a Wayland compositor like sway</source>
            <translation>um compositor Wayland como o sway</translation>
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
            <translation>N telas, de 1 a 16 (padrão: 2),</translation>
        </message>
        <message>
            <source>in memory, drawn into pictures</source>
            <translation>na memória, desenhadas em imagens</translation>
        </message>
        <message>
            <source>start with the effect off</source>
            <translation>iniciar com o efeito desligado</translation>
        </message>
        <message>
            <source>start with the session, asking nothing</source>
            <translation>iniciar com a sessão, sem perguntar</translation>
        </message>
        <message>
            <source>show this text</source>
            <translation>mostrar este texto</translation>
        </message>
        <message>
            <source>show the version</source>
            <translation>mostrar a versão</translation>
        </message>
        <message>
            <source>A FILE is an effect document (.nocturo) to open, by the Nocturo that runs if
there is one. Starting Nocturo a second time without one toggles the effect.</source>
            <translation>FILE é um documento de efeito (.nocturo) a abrir, pelo Nocturo em execução se
houver um. Iniciar o Nocturo outra vez sem documento alterna o efeito.</translation>
        </message>
        <message>
            <source>There is no option "%@"; see nocturo --help.</source>
            <translation>Não existe a opção “%@”; veja nocturo --help.</translation>
        </message>
        <message>
            <source>--display-services takes %@ or simulated:N with N from 1 to 16.</source>
            <translation>--display-services aceita %@ ou simulated:N com N de 1 a 16.</translation>
        </message>
        <message>
            <source>Without a session bus the Nocturo that runs cannot be given a document.</source>
            <translation>Sem um barramento de sessão, não é possível passar um documento ao Nocturo em execução.</translation>
        </message>
        <message>
            <source>"%@" is no identifier of a display with a look, such as 71524911 Night reading.</source>
            <translation>"%@" não é o identificador de uma tela com um visual, como 71524911 Night reading.</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ looks at most.</source>
            <translation>"%1$@" aceita uma lista de no máximo %2$@ visuais.</translation>
        </message>
        <message>
            <source>"%@" is no rule, such as fullscreen off or program mpv Warm evening.</source>
            <translation>"%@" não é uma regra como fullscreen off ou program mpv Warm evening.</translation>
        </message>
        <message>
            <source>"%@" is no point of a schedule, such as 07:00 off or sunset-00:30 Warm evening.</source>
            <translation>"%@" não é um ponto de agenda como 07:00 off ou sunset-00:30 Warm evening.</translation>
        </message>
        <message>
            <source>It holds until Nocturo quits; the settings cannot be saved to %1$@ (%2$@).</source>
            <translation>Vale até o Nocturo ser encerrado; os ajustes não podem ser salvos em %1$@ (%2$@).</translation>
        </message>
        <message>
            <source>the file that is there cannot be read</source>
            <translation>o arquivo que está lá não pode ser lido</translation>
        </message>
        <message>
            <source>the selected effects</source>
            <translation>os efeitos escolhidos</translation>
        </message>
        <message>
            <source>switch the effect on at every start</source>
            <translation>ativar o efeito a cada início</translation>
        </message>
        <message>
            <source>starting Nocturo again toggles the effect</source>
            <translation>iniciar o Nocturo novamente alterna o efeito</translation>
        </message>
        <message>
            <source>while on, apply again every 6 seconds</source>
            <translation>enquanto ativado, reaplicar a cada 6 segundos</translation>
        </message>
        <message>
            <source>pause while the screen saver runs</source>
            <translation>pausar enquanto o protetor de tela estiver ativo</translation>
        </message>
        <message>
            <source>toggle with the global hot key</source>
            <translation>alternar com o atalho global</translation>
        </message>
        <message>
            <source>1: run as a tray item</source>
            <translation>1: executar como ícone da bandeja</translation>
        </message>
        <message>
            <source>virtual key code of the hot key</source>
            <translation>código de tecla virtual do atalho</translation>
        </message>
        <message>
            <source>modifier flags of the hot key</source>
            <translation>teclas modificadoras do atalho, como bits</translation>
        </message>
        <message>
            <source>whether the effect was last switched on</source>
            <translation>se o efeito ficou ativado da última vez</translation>
        </message>
        <message>
            <source>the affected displays; none means all</source>
            <translation>as telas afetadas; nenhuma significa todas</translation>
        </message>
        <message>
            <source>the display last picked; 0 means all</source>
            <translation>a última tela escolhida; 0 significa todas</translation>
        </message>
        <message>
            <source>dim: -1 black, 0 unchanged, 1 white</source>
            <translation>escurecer: -1 preto, 0 inalterado, 1 branco</translation>
        </message>
        <message>
            <source>color filter: hue in degrees</source>
            <translation>filtro de cor: matiz em graus</translation>
        </message>
        <message>
            <source>color filter: strength, 0 to 1</source>
            <translation>filtro de cor: intensidade, de 0 a 1</translation>
        </message>
        <message>
            <source>seconds that a change fades for, 0 to 5</source>
            <translation>segundos que uma transição dura, de 0 a 5</translation>
        </message>
        <message>
            <source>switch and choose looks by the schedule</source>
            <translation>alternar e escolher visuais pela agenda</translation>
        </message>
        <message>
            <source>the schedule: times with looks or off</source>
            <translation>a agenda: horários com visuais ou off</translation>
        </message>
        <message>
            <source>where the sun is looked at; empty: by the time zone</source>
            <translation>onde se olha o sol; vazio: pelo fuso horário</translation>
        </message>
        <message>
            <source>minutes that a change by the schedule fades for, 0 to 60</source>
            <translation>minutos que dura a transição de uma mudança da agenda, de 0 a 60</translation>
        </message>
        <message>
            <source>switch and choose looks by the rules</source>
            <translation>alternar e escolher visuais pelas regras</translation>
        </message>
        <message>
            <source>the rules: what is in front, with looks or off</source>
            <translation>as regras: o que está na frente, com visuais ou off</translation>
        </message>
        <message>
            <source>displays by identifier with looks of their own</source>
            <translation>telas com visuais próprios, por identificador</translation>
        </message>
        <message>
            <source>the f.lux warning was answered</source>
            <translation>o aviso sobre o f.lux foi respondido</translation>
        </message>
        <message>
            <source>"%@" takes a list of effects.</source>
            <translation>“%@” aceita uma lista de efeitos.</translation>
        </message>
        <message>
            <source>"%@" takes a list of effect names.</source>
            <translation>“%@” aceita uma lista de nomes de efeitos.</translation>
        </message>
        <message>
            <source>"%1$@" takes effects only, and there is no effect "%2$@".</source>
            <translation>“%1$@” só aceita efeitos, e não existe o efeito “%2$@”.</translation>
        </message>
        <message>
            <source>"%@" takes a place such as 52.5 13.4 or 33.9S 151.2E.</source>
            <translation>"%@" aceita um lugar como 52.5 13.4 ou 33.9S 151.2E.</translation>
        </message>
        <message>
            <source>"%@" takes true or false.</source>
            <translation>“%@” aceita true ou false.</translation>
        </message>
        <message>
            <source>"%@" takes a whole number.</source>
            <translation>“%@” aceita um número inteiro.</translation>
        </message>
        <message>
            <source>"%@" takes a finite number.</source>
            <translation>“%@” aceita um número finito.</translation>
        </message>
        <message>
            <source>"%@" takes a list of display identifiers.</source>
            <translation>“%@” aceita uma lista de identificadores de telas.</translation>
        </message>
    </context>
    <context>
        <name>ZQFluxCheck</name>
        <message>
            <source>%@ is present on this computer.</source>
            <translation>%@ está presente neste computador.</translation>
        </message>
        <message>
            <source>[%1$@ installed, might interfer %2$@.]</source>
            <translation>O %2$@ também altera as cores das telas e, por isso, pode interferir no %1$@: cada programa pode desfazer o que o outro faz. É melhor usar apenas um deles por vez.</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Continuar</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>Sair</translation>
        </message>
    </context>
</TS>
