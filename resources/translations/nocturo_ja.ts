<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
    <context>
        <name>NocturoPreferencePanel</name>
        <message>
            <source>Nocturo Preferences</source>
            <translation>Nocturo の設定</translation>
        </message>
        <message>
            <source>Effects</source>
            <translation>効果</translation>
        </message>
        <message>
            <source>&amp;Invert</source>
            <translation>反転(&amp;I)</translation>
        </message>
        <message>
            <source>Swaps light and dark</source>
            <translation>明るい色と暗い色を入れ替えます</translation>
        </message>
        <message>
            <source>&amp;Overexpose</source>
            <translation>露出オーバー(&amp;O)</translation>
        </message>
        <message>
            <source>Makes light tones white, so that stripes and backgrounds in light gray vanish</source>
            <translation>明るい色調を白くして、薄い灰色の縞や背景を見えなくします</translation>
        </message>
        <message>
            <source>HDT&amp;V range</source>
            <translation>HDTV の範囲(&amp;V)</translation>
        </message>
        <message>
            <source>Fits the picture into the luminance range of a television, 16 to 235</source>
            <translation>画像をテレビの輝度範囲（16～235）に収めます</translation>
        </message>
        <message>
            <source>&amp;Color filter</source>
            <translation>カラーフィルター(&amp;C)</translation>
        </message>
        <message>
            <source>Tints the screen as colored glass would</source>
            <translation>色付きのガラスを通したように画面に色を付けます</translation>
        </message>
        <message>
            <source>H&amp;ue:</source>
            <translation>色相(&amp;U)：</translation>
        </message>
        <message>
            <source>The color that passes the filter</source>
            <translation>フィルターを通す色</translation>
        </message>
        <message>
            <source>Vivid&amp;ness:</source>
            <translation>鮮やかさ(&amp;N)：</translation>
        </message>
        <message>
            <source>How much of the other colors the filter takes away</source>
            <translation>フィルターがほかの色を取り除く度合い</translation>
        </message>
        <message>
            <source>&amp;Dim or lighten</source>
            <translation>暗くする・明るくする(&amp;D)</translation>
        </message>
        <message>
            <source>Moves every color toward black or toward white</source>
            <translation>すべての色を黒または白に近づけます</translation>
        </message>
        <message>
            <source>&amp;Level:</source>
            <translation>レベル(&amp;L)：</translation>
        </message>
        <message>
            <source>Negative values make the screen darker, positive ones lighter</source>
            <translation>負の値で画面が暗く、正の値で明るくなります</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>プレビュー</translation>
        </message>
        <message>
            <source>Sho&amp;w:</source>
            <translation>表示(&amp;W)：</translation>
        </message>
        <message>
            <source>The screen whose curves are shown</source>
            <translation>カーブを表示する画面</translation>
        </message>
        <message>
            <source>Screens</source>
            <translation>画面</translation>
        </message>
        <message>
            <source>A&amp;pply to:</source>
            <translation>適用先(&amp;P)：</translation>
        </message>
        <message>
            <source>The screens that the effect is applied to</source>
            <translation>効果を適用する画面</translation>
        </message>
        <message>
            <source>Switching</source>
            <translation>オン／オフの切り替え</translation>
        </message>
        <message>
            <source>Otherwise Nocturo starts as you left it</source>
            <translation>オフにすると、前回終了したときの状態で起動します</translation>
        </message>
        <message>
            <source>Switch on when Nocturo s&amp;tarts</source>
            <translation>Nocturo の起動時にオンにする(&amp;T)</translation>
        </message>
        <message>
            <source>Switch on or off when Nocturo is started a&amp;gain</source>
            <translation>Nocturo を再び起動したときにオン／オフを切り替える(&amp;G)</translation>
        </message>
        <message>
            <source>A click on its icon in the launcher then works as a switch</source>
            <translation>ランチャーのアイコンのクリックでオン／オフを切り替えられます</translation>
        </message>
        <message>
            <source>&amp;Reapply every six seconds</source>
            <translation>6 秒ごとに再適用する(&amp;R)</translation>
        </message>
        <message>
            <source>Keeps the effect when games or other programs reset the colors</source>
            <translation>ゲームやほかのプログラムが色をリセットしても効果を維持します</translation>
        </message>
        <message>
            <source>The screen saver then shows its own colors</source>
            <translation>スクリーンセーバーは本来の色で表示されます</translation>
        </message>
        <message>
            <source>P&amp;ause while the screen saver runs</source>
            <translation>スクリーンセーバーの実行中は一時停止する(&amp;A)</translation>
        </message>
        <message>
            <source>Hot key</source>
            <translation>ショートカットキー</translation>
        </message>
        <message>
            <source>Works in every program, when you let go of the key</source>
            <translation>どのプログラムでも、キーを離したときに働きます</translation>
        </message>
        <message>
            <source>Switch with the hot &amp;key</source>
            <translation>ショートカットキーで切り替える(&amp;K)</translation>
        </message>
        <message>
            <source>Application</source>
            <translation>アプリケーション</translation>
        </message>
        <message>
            <source>Show Nocturo:</source>
            <translation>Nocturo の表示方法：</translation>
        </message>
        <message>
            <source>Nocturo then has no icon of its own in the panel</source>
            <translation>この場合、パネルに Nocturo のアイコンは表示されません</translation>
        </message>
        <message>
            <source>As an ordinary application, in the task &amp;bar and launcher</source>
            <translation>通常のアプリケーションとしてタスクバーとランチャーに(&amp;B)</translation>
        </message>
        <message>
            <source>A click on the icon shows Nocturo's menu, a middle click switches the effect</source>
            <translation>アイコンをクリックすると Nocturo のメニューを表示し、中クリックすると効果を切り替えます</translation>
        </message>
        <message>
            <source>As an icon in the panel's tra&amp;y</source>
            <translation>パネルのシステムトレイのアイコンとして(&amp;Y)</translation>
        </message>
        <message>
            <source>Op&amp;en...</source>
            <translation>開く(&amp;E)...</translation>
        </message>
        <message>
            <source>Take the effects from a document</source>
            <translation>ドキュメントから効果を読み込みます</translation>
        </message>
        <message>
            <source>&amp;Save...</source>
            <translation>保存(&amp;S)...</translation>
        </message>
        <message>
            <source>Save the effects as a document</source>
            <translation>効果をドキュメントとして保存します</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>閉じる</translation>
        </message>
    </context>
    <context>
        <name>Localizable</name>
        <message>
            <source>About %@</source>
            <translation>%@ について</translation>
        </message>
        <message>
            <source>Version %@</source>
            <translation>バージョン %@</translation>
        </message>
        <message>
            <source>Credits.html</source>
            <translation>Credits_ja.html</translation>
        </message>
        <message>
            <source>No effect has been chosen.</source>
            <translation>効果が選択されていません。</translation>
        </message>
        <message>
            <source>You should check at least one box in the preference panel relating to the screen effect, or Nocturo will have no visible effect on your screen.</source>
            <translation>設定で画面効果のチェックボックスを少なくとも 1 つオンにしてください。オンにしないと、Nocturo による画面の変化はありません。</translation>
        </message>
        <message>
            <source>Open preferences...</source>
            <translation>設定を開く...</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
        <message>
            <source>Activate Effect</source>
            <translation>効果をオンにする</translation>
        </message>
        <message>
            <source>Preferences...</source>
            <translation>設定...</translation>
        </message>
        <message>
            <source>About Nocturo</source>
            <translation>Nocturo について</translation>
        </message>
        <message>
            <source>Quit Nocturo</source>
            <translation>Nocturo を終了</translation>
        </message>
        <message>
            <source>This desktop shows no tray at the moment; Nocturo can be reached through the applications menu.</source>
            <translation>このデスクトップには現在システムトレイがありません。Nocturo はアプリケーションメニューから操作できます。</translation>
        </message>
        <message>
            <source>Deactivate Effect</source>
            <translation>効果をオフにする</translation>
        </message>
        <message>
            <source>Clear Menu</source>
            <translation>履歴を消去</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>ファイル(&amp;F)</translation>
        </message>
        <message>
            <source>&amp;Open...</source>
            <translation>開く(&amp;O)...</translation>
        </message>
        <message>
            <source>Open &amp;Recent</source>
            <translation>最近使ったファイルを開く(&amp;R)</translation>
        </message>
        <message>
            <source>&amp;Save...</source>
            <translation>保存(&amp;S)...</translation>
        </message>
        <message>
            <source>&amp;Preferences...</source>
            <translation>設定(&amp;P)...</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>閉じる(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Quit Nocturo</source>
            <translation>Nocturo を終了(&amp;Q)</translation>
        </message>
        <message>
            <source>Effect</source>
            <translation>効果</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>ヘルプ</translation>
        </message>
        <message>
            <source>&amp;About Nocturo</source>
            <translation>Nocturo について(&amp;A)</translation>
        </message>
        <message>
            <source>Type a shortcut</source>
            <translation>キーを押してください</translation>
        </message>
        <message>
            <source>Hot key</source>
            <translation>ショートカットキー</translation>
        </message>
        <message>
            <source>Press the new shortcut, or Escape to leave it as it was.</source>
            <translation>新しいショートカットキーを押してください。変更しない場合は Esc キーを押してください。</translation>
        </message>
        <message>
            <source>Click or press Space to record another shortcut.</source>
            <translation>別のショートカットキーを設定するには、クリックするかスペースキーを押してください。</translation>
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
            <translation>すべての画面</translation>
        </message>
        <message>
            <source>Screen %d</source>
            <translation>画面 %d</translation>
        </message>
        <message>
            <source>, %d</source>
            <translation>、%d</translation>
        </message>
        <message>
            <source>None</source>
            <translation>なし</translation>
        </message>
        <message>
            <source>Input</source>
            <translation>入力</translation>
        </message>
        <message>
            <source>Output</source>
            <translation>出力</translation>
        </message>
        <message>
            <source>The colors of this screen cannot be changed.</source>
            <translation>この画面の色は変更できません。</translation>
        </message>
        <message>
            <source>Before</source>
            <translation>適用前</translation>
        </message>
        <message>
            <source>With effect</source>
            <translation>適用後</translation>
        </message>
        <message>
            <source>Clipped</source>
            <translation>クリップ</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>プレビュー</translation>
        </message>
        <message>
            <source>%@ %%</source>
            <translation>%@%%</translation>
        </message>
        <message>
            <source>brightness from %@ to %@</source>
            <translation>明るさ %@～%@</translation>
        </message>
        <message>
            <source>red</source>
            <translation>赤</translation>
        </message>
        <message>
            <source>green</source>
            <translation>緑</translation>
        </message>
        <message>
            <source>blue</source>
            <translation>青</translation>
        </message>
        <message>
            <source>%@ strongest</source>
            <translation>%@が最も強い</translation>
        </message>
        <message>
            <source>%@ and %@ strongest</source>
            <translation>%@と%@が最も強い</translation>
        </message>
        <message>
            <source>inverted</source>
            <translation>反転</translation>
        </message>
        <message>
            <source>bright tones clipped</source>
            <translation>明部がクリップ</translation>
        </message>
        <message>
            <source>dark tones clipped</source>
            <translation>暗部がクリップ</translation>
        </message>
        <message>
            <source>almost nothing can be told apart</source>
            <translation>ほとんど何も見分けられない</translation>
        </message>
        <message>
            <source>, </source>
            <translation>、</translation>
        </message>
        <message>
            <source>%@: %@</source>
            <translation>%@：%@</translation>
        </message>
        <message>
            <source>Keep these colors?</source>
            <translation>この色のままにしますか？</translation>
        </message>
        <message>
            <source>&amp;Keep</source>
            <translation>このままにする(&amp;K)</translation>
        </message>
        <message>
            <source>&amp;Go back</source>
            <translation>元に戻す(&amp;G)</translation>
        </message>
        <message>
            <source>The screens are hard to read now. They go back by themselves in %d s.</source>
            <translation>画面が読みにくくなっています。%d 秒後に元の色に戻ります。</translation>
        </message>
        <message>
            <source> %</source>
            <translation>%</translation>
        </message>
        <message>
            <source>Close anyway</source>
            <translation>このまま閉じる</translation>
        </message>
        <message>
            <source>Nocturo effects</source>
            <translation>Nocturo の効果</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message>
            <source>Save Effect</source>
            <translation>効果を保存</translation>
        </message>
        <message>
            <source>&amp;Hide extension</source>
            <translation>拡張子を隠す(&amp;X)</translation>
        </message>
        <message>
            <source>Saving failed</source>
            <translation>保存できませんでした</translation>
        </message>
        <message>
            <source>Could not save settings at this location.</source>
            <translation>この場所に設定を保存できませんでした。</translation>
        </message>
        <message>
            <source>Open Effect</source>
            <translation>効果を開く</translation>
        </message>
        <message>
            <source>Opening failed</source>
            <translation>開けませんでした</translation>
        </message>
        <message>
            <source>“%@” is not an effect document.</source>
            <translation>「%@」は効果のドキュメントではありません。</translation>
        </message>
    </context>
    <context>
        <name>ZQFluxCheck</name>
        <message>
            <source>%@ is present on this computer.</source>
            <translation>このコンピューターには %@ があります。</translation>
        </message>
        <message>
            <source>[%1$@ installed, might interfer %2$@.]</source>
            <translation>%2$@ も画面の色を変更するため、%1$@ の動作を妨げることがあります。それぞれのプログラムが、もう一方による変更を打ち消してしまう可能性があります。同時に使用するのはどちらか一方だけにすることをお勧めします。</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>続行</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>終了</translation>
        </message>
    </context>
</TS>
