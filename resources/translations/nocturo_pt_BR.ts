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
            <source>Effects</source>
            <translation>Efeitos</translation>
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
            <translation>S&amp;uperexpor</translation>
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
            <source>H&amp;ue:</source>
            <translation>&amp;Matiz:</translation>
        </message>
        <message>
            <source>The color that passes the filter</source>
            <translation>A cor que o filtro deixa passar</translation>
        </message>
        <message>
            <source>Vivid&amp;ness:</source>
            <translation>&amp;Vividez:</translation>
        </message>
        <message>
            <source>How much of the other colors the filter takes away</source>
            <translation>Quanto das outras cores o filtro retira</translation>
        </message>
        <message>
            <source>&amp;Dim or lighten</source>
            <translation>&amp;Escurecer ou clarear</translation>
        </message>
        <message>
            <source>Moves every color toward black or toward white</source>
            <translation>Aproxima todas as cores do preto ou do branco</translation>
        </message>
        <message>
            <source>&amp;Level:</source>
            <translation>&amp;Nível:</translation>
        </message>
        <message>
            <source>Negative values make the screen darker, positive ones lighter</source>
            <translation>Valores negativos escurecem a tela, positivos a clareiam</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Pré-visualização</translation>
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
            <source>Screens</source>
            <translation>Telas</translation>
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
            <source>Hot key</source>
            <translation>Atalho de teclado</translation>
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
            <source>Application</source>
            <translation>Aplicativo</translation>
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
            <source>Op&amp;en...</source>
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
            <source>Activate Effect</source>
            <translation>Ativar o efeito</translation>
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
            <source>This desktop shows no tray at the moment; Nocturo can be reached through the applications menu.</source>
            <translation>Este ambiente de trabalho não mostra nenhuma bandeja no momento; o Nocturo pode ser acessado pelo menu de aplicativos.</translation>
        </message>
        <message>
            <source>Deactivate Effect</source>
            <translation>Desativar o efeito</translation>
        </message>
        <message>
            <source>Clear Menu</source>
            <translation>Limpar menu</translation>
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
            <source>Effect</source>
            <translation>Efeito</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>Ajuda</translation>
        </message>
        <message>
            <source>&amp;About Nocturo</source>
            <translation>&amp;Sobre o Nocturo</translation>
        </message>
        <message>
            <source>Type a shortcut</source>
            <translation>Digite um atalho</translation>
        </message>
        <message>
            <source>Hot key</source>
            <translation>Atalho de teclado</translation>
        </message>
        <message>
            <source>Press the new shortcut, or Escape to leave it as it was.</source>
            <translation>Pressione o novo atalho ou Esc para deixá-lo como estava.</translation>
        </message>
        <message>
            <source>Click or press Space to record another shortcut.</source>
            <translation>Clique ou pressione Espaço para gravar outro atalho.</translation>
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
            <translation>Shift</translation>
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
            <source>%@ %%</source>
            <translation>%@%%</translation>
        </message>
        <message>
            <source>brightness from %@ to %@</source>
            <translation>brilho de %@ a %@</translation>
        </message>
        <message>
            <source>red</source>
            <translation>vermelho</translation>
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
            <source>The screens are hard to read now. They go back by themselves in %d s.</source>
            <translation>As telas estão difíceis de ler agora. As cores anteriores voltarão sozinhas em %d s.</translation>
        </message>
        <message>
            <source> %</source>
            <translation>%</translation>
        </message>
        <message>
            <source>Close anyway</source>
            <translation>Fechar mesmo assim</translation>
        </message>
        <message>
            <source>Nocturo effects</source>
            <translation>Efeitos do Nocturo</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>OK</translation>
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
            <source>Opening failed</source>
            <translation>Falha ao abrir</translation>
        </message>
        <message>
            <source>“%@” is not an effect document.</source>
            <translation>“%@” não é um documento de efeito.</translation>
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
