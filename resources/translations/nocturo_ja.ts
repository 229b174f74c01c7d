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
            <source>Switches the effect on or off (Ctrl+E)</source>
            <translation>効果のオンとオフを切り替えます (Ctrl+E)</translation>
        </message>
        <message>
            <source>Effect</source>
            <translation>効果</translation>
        </message>
        <message>
            <source>Nocturo can stay at hand as an icon in the panel's tray.</source>
            <translation>Nocturo はパネルのトレイにアイコンとして置いておけます。</translation>
        </message>
        <message>
            <source>The icon then switches the effect and leads back to this window</source>
            <translation>アイコンからエフェクトを切り替えたり、このウィンドウに戻ったりできます</translation>
        </message>
        <message>
            <source>Stay in the tray</source>
            <translation>トレイに置く</translation>
        </message>
        <message>
            <source>The page "Switching" has this choice, too</source>
            <translation>この設定は「オン／オフの切り替え」ページにもあります</translation>
        </message>
        <message>
            <source>Not now</source>
            <translation>今はしない</translation>
        </message>
        <message>
            <source>Looks and effects</source>
            <translation>ルックと効果</translation>
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
            <source>&amp;Temperature:</source>
            <translation>色温度(&amp;T):</translation>
        </message>
        <message>
            <source>The color filter as warm or cool light, from candles to the sky; empty while it is another color</source>
            <translation>カラーフィルターを、ろうそくから空までの暖かい光や冷たい光として表します。ほかの色の間は空です</translation>
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
            <source>Vivi&amp;dness:</source>
            <translation>鮮やかさ(&amp;D)：</translation>
        </message>
        <message>
            <source>How much of the other colors the filter takes away</source>
            <translation>フィルターがほかの色を取り除く度合い</translation>
        </message>
        <message>
            <source>Di&amp;m or lighten</source>
            <translation>暗くする・明るくする(&amp;M)</translation>
        </message>
        <message>
            <source>Moves every color toward black or toward white</source>
            <translation>すべての色を黒または白に近づけます</translation>
        </message>
        <message>
            <source>Level</source>
            <translation>レベル</translation>
        </message>
        <message>
            <source>Negative values make the screen darker, positive ones lighter</source>
            <translation>負の値で画面が暗く、正の値で明るくなります</translation>
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
            <source>Sho&amp;w:</source>
            <translation>表示(&amp;W)：</translation>
        </message>
        <message>
            <source>The screen whose curves are shown</source>
            <translation>カーブを表示する画面</translation>
        </message>
        <message>
            <source>Cu&amp;rves</source>
            <translation>カーブ(&amp;R)</translation>
        </message>
        <message>
            <source>Shows beside the picture what becomes of each color channel</source>
            <translation>画像の横に、各色チャンネルがどう変わるかを表示します</translation>
        </message>
        <message>
            <source>Its loo&amp;k:</source>
            <translation>ルック(&amp;K):</translation>
        </message>
        <message>
            <source>What this screen shows in place of the effects of all, also when it comes back</source>
            <translation>この画面が全画面共通の効果の代わりに表示するもの。再接続後も同じです</translation>
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
            <source>Nocturo is then there after every login</source>
            <translation>ログインするたびに Nocturo が起動します</translation>
        </message>
        <message>
            <source>Start &amp;with the session</source>
            <translation>セッションと共に起動(&amp;W)</translation>
        </message>
        <message>
            <source>Switch on or off when Nocturo is started a&amp;gain</source>
            <translation>Nocturo をもう一度起動したらオン / オフ(&amp;G)</translation>
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
            <source>Works in every program, when you let go of the key</source>
            <translation>どのプログラムでも、キーを離したときに働きます</translation>
        </message>
        <message>
            <source>Switch with the hot &amp;key</source>
            <translation>ショートカットキーで切り替える(&amp;K)</translation>
        </message>
        <message>
            <source>Leaves Nocturo without a hot key</source>
            <translation>Nocturo のショートカットキーをなくします</translation>
        </message>
        <message>
            <source>Clear the hot key</source>
            <translation>ショートカットキーを消去</translation>
        </message>
        <message>
            <source>Fa&amp;de:</source>
            <translation>フェード(&amp;D):</translation>
        </message>
        <message>
            <source>How long the colors take to change when the effect is switched</source>
            <translation>効果を切り替えるときに色が変わるまでの時間</translation>
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
            <source>Schedule</source>
            <translation>スケジュール</translation>
        </message>
        <message>
            <source>Rules</source>
            <translation>ルール</translation>
        </message>
        <message>
            <source>Ope&amp;n...</source>
            <translation>開く(&amp;N)...</translation>
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
            <source>Pause</source>
            <translation>一時停止</translation>
        </message>
        <message>
            <source>30 minutes</source>
            <translation>30 分</translation>
        </message>
        <message>
            <source>1 hour</source>
            <translation>1 時間</translation>
        </message>
        <message>
            <source>Until tomorrow</source>
            <translation>明日まで</translation>
        </message>
        <message>
            <source>&amp;Deactivate Effect</source>
            <translation>効果をオフにする(&amp;D)</translation>
        </message>
        <message>
            <source>&amp;Activate Effect</source>
            <translation>効果をオンにする(&amp;A)</translation>
        </message>
        <message>
            <source>Deactivate Effect</source>
            <translation>効果をオフにする</translation>
        </message>
        <message>
            <source>Activate Effect</source>
            <translation>効果をオンにする</translation>
        </message>
        <message>
            <source>Open Recent</source>
            <translation>最近使ったファイルを開く</translation>
        </message>
        <message>
            <source>Invert</source>
            <translation>反転</translation>
        </message>
        <message>
            <source>Overexpose</source>
            <translation>露出オーバー</translation>
        </message>
        <message>
            <source>Dim or lighten</source>
            <translation>暗くする、明るくする</translation>
        </message>
        <message>
            <source>Color filter</source>
            <translation>カラーフィルター</translation>
        </message>
        <message>
            <source>HDTV range</source>
            <translation>HDTV レンジ</translation>
        </message>
        <message>
            <source>Effects</source>
            <translation>効果</translation>
        </message>
        <message>
            <source>and %d more</source>
            <translation>ほか%d件</translation>
        </message>
        <message>
            <source>Looks</source>
            <translation>ルック</translation>
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
            <source>%@, not connected</source>
            <translation>%@（未接続）</translation>
        </message>
        <message>
            <source>Lighten %@</source>
            <translation>明るく %@</translation>
        </message>
        <message>
            <source>Dim %@</source>
            <translation>暗く %@</translation>
        </message>
        <message>
            <source>Color filter %1$@° %2$@ %%</source>
            <translation>カラーフィルター %1$@° %2$@%%</translation>
        </message>
        <message>
            <source>all screens</source>
            <translation>すべての画面</translation>
        </message>
        <message>
            <source>screens that are not connected</source>
            <translation>接続されていない画面</translation>
        </message>
        <message>
            <source>On, but no effect is chosen</source>
            <translation>オンですが、効果が選ばれていません</translation>
        </message>
        <message>
            <source>On: %1$@ on %2$@</source>
            <translation>オン: %2$@に%1$@</translation>
        </message>
        <message>
            <source>%1$@, but not on %2$@</source>
            <translation>%1$@（%2$@を除く）</translation>
        </message>
        <message>
            <source>Paused while %@ runs</source>
            <translation>%@ の実行中は一時停止</translation>
        </message>
        <message>
            <source>Paused until you go on</source>
            <translation>再開するまで一時停止中</translation>
        </message>
        <message>
            <source>Paused until %@</source>
            <translation>%@ まで一時停止中</translation>
        </message>
        <message>
            <source>%@; by hand</source>
            <translation>%@（手動）</translation>
        </message>
        <message>
            <source>%1$@; by hand until %2$@ or a rule holds</source>
            <translation>%1$@; 手動 (%2$@ まで、またはルールが成り立つまで)</translation>
        </message>
        <message>
            <source>%1$@; by hand until %2$@</source>
            <translation>%1$@（%2$@ まで手動）</translation>
        </message>
        <message>
            <source>%1$@; by the rule "%2$@"</source>
            <translation>%1$@; ルール「%2$@」による</translation>
        </message>
        <message>
            <source>%@; by the schedule</source>
            <translation>%@（スケジュール）</translation>
        </message>
        <message>
            <source>%1$@; by the schedule until %2$@</source>
            <translation>%1$@（%2$@ までスケジュール）</translation>
        </message>
        <message>
            <source>%@, its own look</source>
            <translation>%@ (独自のルック)</translation>
        </message>
        <message>
            <source>Off</source>
            <translation>オフ</translation>
        </message>
        <message>
            <source>On</source>
            <translation>オン</translation>
        </message>
        <message>
            <source>%1$@. %2$@: %3$@</source>
            <translation>%1$@。%2$@: %3$@</translation>
        </message>
        <message>
            <source>Off. Choose effects, then switch on</source>
            <translation>オフ。効果を選んでからオンにしてください</translation>
        </message>
        <message>
            <source>Off. When on: %@</source>
            <translation>オフ。オンにすると: %@</translation>
        </message>
        <message>
            <source>%@ %%</source>
            <translation>%@%%</translation>
        </message>
        <message>
            <source>Paused: screen saver</source>
            <translation>一時停止中: スクリーンセーバー</translation>
        </message>
        <message>
            <source>Nobody knows when that is: "%@".</source>
            <translation>それがいつかは分かりません: 「%@」。</translation>
        </message>
        <message>
            <source>There is no look "%@".</source>
            <translation>「%@」というルックはありません。</translation>
        </message>
        <message>
            <source>The time zone has no place for the sun; set one with: nocturoctl set SchedulePlace "52.5 13.4"</source>
            <translation>タイムゾーンに太陽の場所がありません。次のように設定してください: nocturoctl set SchedulePlace "52.5 13.4"</translation>
        </message>
        <message>
            <source>"%@" is no length of a pause, such as 30m, 2h or 1h30m, up to 366d.</source>
            <translation>「%@」は一時停止の長さではありません。30m、2h、1h30m などで、366d までです。</translation>
        </message>
        <message>
            <source>"%@" is no time to pause for, such as 30m, 2h, until 18:00 or until sunset.</source>
            <translation>「%@」は一時停止の時間ではありません。30m、2h、until 18:00、until sunset などです。</translation>
        </message>
        <message>
            <source>Nobody could read the screens under the look "%@"; it means off until it is changed.</source>
            <translation>ルック「%@」では画面を読めませんでした。変更されるまではオフとして扱われます。</translation>
        </message>
        <message>
            <source>This desktop does not tell which window is in front.</source>
            <translation>このデスクトップは、どのウィンドウが最前面にあるかを伝えません。</translation>
        </message>
        <message>
            <source>There is no look "%@"; the name of a program with spaces stands between quotation marks.</source>
            <translation>「%@」というルックはありません。空白を含むプログラム名は引用符で囲みます。</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ rules at most.</source>
            <translation>「%1$@」には最大 %2$@ 件のルールの一覧を指定します。</translation>
        </message>
        <message>
            <source>There is no rule %@.</source>
            <translation>ルール %@ はありません。</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ points at most.</source>
            <translation>「%1$@」には最大 %2$@ 個のポイントのリストを指定します。</translation>
        </message>
        <message>
            <source>The schedule has no point %@.</source>
            <translation>スケジュールにポイント %@ はありません。</translation>
        </message>
        <message>
            <source>There is no setting "%@".</source>
            <translation>「%@」という設定はありません。</translation>
        </message>
        <message>
            <source>"%@" is no absolute path.</source>
            <translation>“%@”は絶対パスではありません。</translation>
        </message>
        <message>
            <source>No setting takes a value of this type.</source>
            <translation>この種類の値を受け付ける設定はありません。</translation>
        </message>
        <message>
            <source>The display server keeps %@ to itself, so it cannot be the hot key.</source>
            <translation>%@はディスプレイサーバーが自分で使うため、ショートカットキーにできません。</translation>
        </message>
        <message>
            <source>"%@" is not an effect document.</source>
            <translation>「%@」は効果のドキュメントではありません。</translation>
        </message>
        <message>
            <source>Could not save settings at "%@": %@.</source>
            <translation>「%@」に設定を保存できませんでした：%@。</translation>
        </message>
        <message>
            <source>A temperature is from 1000 to 25000 K.</source>
            <translation>色温度は 1000～25000 K です。</translation>
        </message>
        <message>
            <source>The color filter has a hue and a vividness that are no temperature.</source>
            <translation>カラーフィルターの色相と鮮やかさに対応する色温度はありません。</translation>
        </message>
        <message>
            <source>"%@" is no setting that goes in steps.</source>
            <translation>「%@」は増減できる設定ではありません。</translation>
        </message>
        <message>
            <source>One display has to stay, as a choice of none means all; nocturoctl off switches the effect off.</source>
            <translation>画面を 1 つは残す必要があります。何も選ばないとすべてを意味します。効果をオフにするには nocturoctl off を使います。</translation>
        </message>
        <message>
            <source>There is no display with the identifier %d.</source>
            <translation>識別子 %d の画面はありません。</translation>
        </message>
        <message>
            <source>These are not effect documents: %@</source>
            <translation>効果のドキュメントではありません: %@</translation>
        </message>
        <message>
            <source>Nocturo waits for the answer to the question that it shows.</source>
            <translation>Nocturo は表示している質問への回答を待っています。</translation>
        </message>
        <message>
            <source>No more than %d documents can be opened at once.</source>
            <translation>一度に開けるドキュメントは %d 個までです。</translation>
        </message>
        <message>
            <source>Nocturo answered something that this version does not understand.</source>
            <translation>Nocturoの応答をこのバージョンでは解釈できません。</translation>
        </message>
        <message>
            <source>Nocturo is not running.</source>
            <translation>Nocturo は起動していません。</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>一時停止</translation>
        </message>
        <message>
            <source>Nocturo is not running; start it with: nocturo &amp;</source>
            <translation>Nocturo は起動していません。次のように起動してください: nocturo &amp;</translation>
        </message>
        <message>
            <source>The session bus failed: %@.</source>
            <translation>セッションバスでエラーが発生しました: %@。</translation>
        </message>
        <message>
            <source>There is no session bus over which Nocturo could be reached; start it inside a desktop session with: nocturo &amp;</source>
            <translation>Nocturo と通信するためのセッションバスがありません。デスクトップセッションの中で次のように起動してください: nocturo &amp;</translation>
        </message>
        <message>
            <source>The Nocturo that runs does not answer.</source>
            <translation>起動中の Nocturo が応答しません。</translation>
        </message>
        <message>
            <source>Nocturo did not do it: %@</source>
            <translation>Nocturo は実行できませんでした: %@</translation>
        </message>
        <message>
            <source>There is no setting "%@"; nocturoctl status --all lists them.</source>
            <translation>「%@」という設定はありません。nocturoctl status --all ですべて表示できます。</translation>
        </message>
        <message>
            <source>No hot key is chosen.</source>
            <translation>ショートカットキーは選択されていません。</translation>
        </message>
        <message>
            <source>%@  (not enabled; nocturoctl hotkey enable)</source>
            <translation>%@  (無効。有効にするには nocturoctl hotkey enable)</translation>
        </message>
        <message>
            <source>%@  (not in force: another program holds it, or the desktop offers no hot keys)</source>
            <translation>%@  (機能していません: ほかのプログラムが使用中か、デスクトップがショートカットキーに対応していません)</translation>
        </message>
        <message>
            <source>Name a file.</source>
            <translation>ファイルを指定してください。</translation>
        </message>
        <message>
            <source>There is no such file: %@</source>
            <translation>そのファイルはありません: %@</translation>
        </message>
        <message>
            <source>No display is online.</source>
            <translation>接続されている画面がありません。</translation>
        </message>
        <message>
            <source>The file "%@" cannot be written.</source>
            <translation>ファイル「%@」に書き込めません。</translation>
        </message>
        <message>
            <source>Switch the effect on</source>
            <translation>効果をオンにする</translation>
        </message>
        <message>
            <source>--fade has it come little by little, in up to 5 seconds.</source>
            <translation>--fade を付けると、最大 5 秒かけて少しずつ現れます。</translation>
        </message>
        <message>
            <source>Switch the effect off</source>
            <translation>効果をオフにする</translation>
        </message>
        <message>
            <source>Every display gets its own colors back.</source>
            <translation>すべての画面が元の色に戻ります。</translation>
        </message>
        <message>
            <source>Switch the effect on or off</source>
            <translation>効果のオン／オフを切り替える</translation>
        </message>
        <message>
            <source>Bind this to a key. --fade has it come and go little by little, in up to 5 seconds.</source>
            <translation>キーに割り当ててください。--fade を付けると、最大 5 秒かけて少しずつ切り替わります。</translation>
        </message>
        <message>
            <source>Switch the effect off for a time</source>
            <translation>しばらくの間エフェクトをオフにする</translation>
        </message>
        <message>
            <source>For so long, such as 30m, 2h or 1h30m; until 18:00, sunrise, tomorrow,
which is six in the morning, or next, the schedule's next point; while a command
runs; or until you switch the effect or say cancel.</source>
            <translation>30m、2h、1h30m のような時間の間。until 18:00、sunrise (日の出)、朝 6 時を指す tomorrow、
またはスケジュールの次の点を指す next まで。while でコマンドの実行中。それ以外は、
エフェクトを切り替えるか cancel と指定するまで。</translation>
        </message>
        <message>
            <source>Show or change what happens by the clock and the sun</source>
            <translation>時刻と太陽によって起こることを表示または変更する</translation>
        </message>
        <message>
            <source>A POINT is a time and a look or off: 07:00 off, sunset-00:30 Warm evening. Instead of a
time of day it may have dawn, sunrise, sunset or dusk. list and next take --json.</source>
            <translation>POINT は時刻とルックまたは off です: 07:00 off、sunset-00:30 Warm evening。時刻の代わりに
dawn、sunrise、sunset、dusk も使えます。list と next には --json を付けられます。</translation>
        </message>
        <message>
            <source>Show or change what happens while programs are in front</source>
            <translation>プログラムが最前面にある間のことを表示または変更する</translation>
        </message>
        <message>
            <source>A RULE is fullscreen, program NAME or game, and a look or off: fullscreen off,
program mpv Warm evening. The first one that holds for a display counts. list takes
--json.</source>
            <translation>RULE は fullscreen、program NAME または game に、ルックか off を続けたものです: fullscreen off、
program mpv Warm evening。画面に当てはまる最初のルールが有効です。list には
--json を付けられます。</translation>
        </message>
        <message>
            <source>Show the state of everything</source>
            <translation>すべての状態を表示する</translation>
        </message>
        <message>
            <source>With --all, every setting as well; with --json, one object for programs; with --bar,
a line for a bar: waybar, polybar or i3status-rust. --follow prints another line at
each change, whether Nocturo runs or comes later.</source>
            <translation>--all ですべての設定も、--json でプログラム向けの 1 つのオブジェクトを、--bar で
バー（waybar、polybar、i3status-rust）向けの 1 行を表示します。--follow は変化の
たびにもう 1 行表示し、Nocturo が後から起動しても続けます。</translation>
        </message>
        <message>
            <source>List or choose the effects</source>
            <translation>効果を一覧表示または選択する</translation>
        </message>
        <message>
            <source>NAME is invert, overexposure, dim, color-filter or hdtv-luminance, or a class
name. add, remove and toggle change the selection, only replaces it.</source>
            <translation>NAME は invert、overexposure、dim、color-filter、hdtv-luminance、またはクラス名です。
add、remove、toggle は選択を変更し、only は選択を置き換えます。</translation>
        </message>
        <message>
            <source>Show the dim level, dim or lighten</source>
            <translation>明るさの表示、暗くする、明るくする</translation>
        </message>
        <message>
            <source>N% makes the picture darker by so much than it is by itself. +N% and -N% are steps: they
make it lighter and darker than it is now, and print what it is then. =LEVEL% is what
the window shows, from =-100% (black) over =0% to =100% (white).</source>
            <translation>N% は画像を元の状態よりその分だけ暗くします。+N% と -N% は段階で、今より明るく、
または暗くし、その結果を表示します。=LEVEL% はウインドウに表示される値で、
=-100%（黒）から =0%、=100%（白）までです。</translation>
        </message>
        <message>
            <source>Show or choose hue and vividness of the color filter</source>
            <translation>カラーフィルターの色相と鮮やかさの表示または選択</translation>
        </message>
        <message>
            <source>HUE is in degrees: 0 red, 25 orange, 120 green, 240 blue. +N and -N go so far from
what is there.</source>
            <translation>HUE は度です: 0 赤、25 オレンジ、120 緑、240 青。+N と -N は今の値から増減します。</translation>
        </message>
        <message>
            <source>Show or choose a color temperature</source>
            <translation>色温度を表示または選択する</translation>
        </message>
        <message>
            <source>From 1000 (candle) over 6500 (neutral) to 25000 (blue sky), as hue and vividness of the
color filter, which is chosen. +N and -N go so far from the one in force.</source>
            <translation>1000 (ろうそく) から 6500 (中性) を経て 25000 (青空) まで。カラーフィルターの色相と
鮮やかさとして設定し、フィルターを選択します。+N と -N は今の値から増減します。</translation>
        </message>
        <message>
            <source>Show, choose or keep a combination of effects</source>
            <translation>効果の組み合わせを表示、選択、保存する</translation>
        </message>
        <message>
            <source>list [--json]      all of them, those that come with Nocturo and your own
next, previous     the one after or before the one in force
back               what the last look replaced
save NAME          keep the effects as a look of your own
rename NAME NEW, delete NAME, move NAME PLACE</source>
            <translation>list [--json]      すべて (付属のものと自作のもの)
next, previous     今のルックの次または前
back               最後のルックに置き換えられる前の状態
save NAME          今の効果を自作のルックとして保存
rename NAME NEW, delete NAME, move NAME PLACE</translation>
        </message>
        <message>
            <source>Show a setting</source>
            <translation>設定を表示する</translation>
        </message>
        <message>
            <source>nocturoctl status --all lists the keys.</source>
            <translation>キーは nocturoctl status --all で表示できます。</translation>
        </message>
        <message>
            <source>Change a setting</source>
            <translation>設定を変更する</translation>
        </message>
        <message>
            <source>VALUE is true or false, a number, or a list with commas, as the setting takes it.
For example: nocturoctl set NDDimEffectLevel -30%. Numbers beyond the range and displays
that are not there are refused without --force.</source>
            <translation>VALUE は設定に応じて、true か false、数値、またはコンマ区切りのリストです。
例: nocturoctl set NDDimEffectLevel -30%。範囲外の数値と存在しない画面は、--force を
付けないと拒否されます。</translation>
        </message>
        <message>
            <source>Change a number by so much</source>
            <translation>数値を増減する</translation>
        </message>
        <message>
            <source>As far as its range goes. For example: nocturoctl step NDDimEffectLevel -5%</source>
            <translation>範囲の端までです。例: nocturoctl step NDDimEffectLevel -5%</translation>
        </message>
        <message>
            <source>Give a setting its default value again</source>
            <translation>設定を既定値に戻す</translation>
        </message>
        <message>
            <source>List or choose the affected displays</source>
            <translation>対象の画面を一覧表示または選択する</translation>
        </message>
        <message>
            <source>DISPLAY is its number in the list, its name or its identifier. only chooses these
alone; toggle puts each into the set of affected displays or takes it out. An
empty set means all displays, which is also what all chooses. look gives a display a
look of its own; - takes it away.</source>
            <translation>DISPLAY は一覧の番号、名前、または識別子です。only はそれだけを選びます。toggle は
それぞれを対象に加えたり、対象から外したりします。対象が空のときはすべての画面を
意味し、all を選んだときも同じです。look は画面に独自のルックを与え、
- はそれを取り消します。</translation>
        </message>
        <message>
            <source>Show or choose the global hot key</source>
            <translation>グローバルショートカットキーを表示または選択する</translation>
        </message>
        <message>
            <source>KEYS is one key and any of ctrl, alt (or option), shift and super (or command),
such as 'ctrl+super+F5' or 'alt+shift+k'. The hot key toggles the effect while it
is enabled. Keys are what they type, and f1 to f20, left, right, up, down, home,
end, pageup, pagedown, insert, delete, backspace, tab, space, return, escape,
menu, volumeup, volumedown, mute, eisu, kana, keypad0 to keypad9, keypadplus,
keypadminus, keypadmultiply, keypaddivide, keypaddecimal, keypadcomma,
keypadequals, keypadenter and keypadclear.</source>
            <translation>KEYS は 1 つのキーと任意の ctrl、alt (または option)、shift、super (または command) です。
例: 'ctrl+super+F5'、'alt+shift+k'。ショートカットキーは、有効な間、効果を切り替えます。
キーは、入力される文字、または f1～f20, left, right, up, down, home,
end, pageup, pagedown, insert, delete, backspace, tab, space, return, escape,
menu, volumeup, volumedown, mute, eisu, kana, keypad0～keypad9, keypadplus,
keypadminus, keypadmultiply, keypaddivide, keypaddecimal, keypadcomma,
keypadequals, keypadenter, keypadclear。</translation>
        </message>
        <message>
            <source>Take the effects from a document</source>
            <translation>ドキュメントから効果を読み込む</translation>
        </message>
        <message>
            <source>Save the effects as a document</source>
            <translation>効果をドキュメントとして保存する</translation>
        </message>
        <message>
            <source>Draw what the effects do</source>
            <translation>効果の働きを図に描く</translation>
        </message>
        <message>
            <source>The curves of a display, of the main one unless told otherwise, and a scene seen
through them, as a PNG picture. N is its number, name or identifier.</source>
            <translation>画面 (指定がなければメイン画面) のカーブと、それを通して見た光景を PNG 画像に
します。N は画面の番号、名前、または識別子です。</translation>
        </message>
        <message>
            <source>Show the preference window</source>
            <translation>設定ウィンドウを表示する</translation>
        </message>
        <message>
            <source>Show the about box</source>
            <translation>Nocturo についての画面を表示する</translation>
        </message>
        <message>
            <source>Print every change as it happens</source>
            <translation>変更があるたびに出力する</translation>
        </message>
        <message>
            <source>One JSON object a line: first the whole state, then what changed. Ends when Nocturo
does.</source>
            <translation>1 行に 1 つの JSON オブジェクト：最初に状態全体、その後は変わったもの。Nocturo と
ともに終わります。</translation>
        </message>
        <message>
            <source>Give every display its own colors back</source>
            <translation>すべての画面を元の色に戻す</translation>
        </message>
        <message>
            <source>Whether Nocturo runs, answers or was killed, and without a session bus as well. Where
nothing is known of a display's own colors it gets plain ones.</source>
            <translation>Nocturo が動作中でも、応答しなくても、強制終了された後でも、セッションバスが
なくても働きます。元の色が分からない画面は標準の色になります。</translation>
        </message>
        <message>
            <source>Give the displays back and end Nocturo</source>
            <translation>画面を元に戻して Nocturo を終了する</translation>
        </message>
        <message>
            <source>%@  (the color filter is not chosen)</source>
            <translation>%@  (カラーフィルターは選択されていません)</translation>
        </message>
        <message>
            <source>"%1$@" takes a number from %2$@ to %3$@.</source>
            <translation>「%1$@」には %2$@ から %3$@ までの数値を指定してください。</translation>
        </message>
        <message>
            <source>%@  (dim is not chosen)</source>
            <translation>%@  (「暗くする」は選択されていません)</translation>
        </message>
        <message>
            <source>Nocturo has ended.</source>
            <translation>Nocturo が終了しました。</translation>
        </message>
        <message>
            <source>nocturoctl %@ --help tells more.</source>
            <translation>詳しくは nocturoctl %@ --help を参照してください。</translation>
        </message>
        <message>
            <source>Usage: %@</source>
            <translation>使い方: %@</translation>
        </message>
        <message>
            <source>Drives the Nocturo that runs in this session.</source>
            <translation>このセッションで動作している Nocturo を操作します。</translation>
        </message>
        <message>
            <source>With --keep, colors that leave every screen hard to read stay. Without it they go back
after ten seconds, unless somebody keeps them.</source>
            <translation>--keep を付けると、どの画面も読みにくくなる色でもそのまま残ります。付けないと、
誰も残さないかぎり 10 秒後に元に戻ります。</translation>
        </message>
        <message>
            <source>Exit status: 0 done, 1 failed, 2 not understood, 3 Nocturo is not running.</source>
            <translation>終了コード: 0 成功、1 失敗、2 コマンドの誤り、3 Nocturo が起動していない。</translation>
        </message>
        <message>
            <source>Say what to do; nocturoctl --help lists the verbs.</source>
            <translation>何をするかを指定してください。nocturoctl --help で一覧を表示できます。</translation>
        </message>
        <message>
            <source>There is no verb "%@"; nocturoctl --help lists them.</source>
            <translation>「%@」という動詞はありません。nocturoctl --help で一覧を表示できます。</translation>
        </message>
        <message>
            <source>The answer cannot be written: %@.</source>
            <translation>応答を書き込めません: %@</translation>
        </message>
        <message>
            <source>"%1$@" cannot be started: %2$@.</source>
            <translation>「%1$@」を起動できません: %2$@。</translation>
        </message>
        <message>
            <source>no ramp, or another program has it</source>
            <translation>ランプがないか、ほかのプログラムが使用中</translation>
        </message>
        <message>
            <source>cannot be given a color profile</source>
            <translation>カラープロファイルを設定できません</translation>
        </message>
        <message>
            <source>in HDR mode</source>
            <translation>HDR モード</translation>
        </message>
        <message>
            <source>refused by the desktop</source>
            <translation>デスクトップが拒否しました</translation>
        </message>
        <message>
            <source>yes</source>
            <translation>はい</translation>
        </message>
        <message>
            <source>no</source>
            <translation>いいえ</translation>
        </message>
        <message>
            <source>(none)</source>
            <translation>(なし)</translation>
        </message>
        <message>
            <source>%@ (not enabled)</source>
            <translation>%@ (無効)</translation>
        </message>
        <message>
            <source>%@ (not in force)</source>
            <translation>%@ (機能していません)</translation>
        </message>
        <message>
            <source>Another program</source>
            <translation>ほかのプログラム</translation>
        </message>
        <message>
            <source>%@ changes the colors too: found once since Nocturo was started.</source>
            <translation>%@も色を変更しています: Nocturo の起動後に 1 回検出しました。</translation>
        </message>
        <message>
            <source>%@ changes the colors too: found %d times since Nocturo was started.</source>
            <translation>%@も色を変更しています: Nocturo の起動後に %d 回検出しました。</translation>
        </message>
        <message>
            <source>look</source>
            <translation>ルック</translation>
        </message>
        <message>
            <source>dim level</source>
            <translation>暗さのレベル</translation>
        </message>
        <message>
            <source>color filter hue</source>
            <translation>カラーフィルターの色相</translation>
        </message>
        <message>
            <source>color filter vividness</source>
            <translation>カラーフィルターの鮮やかさ</translation>
        </message>
        <message>
            <source>hot key</source>
            <translation>ショートカットキー</translation>
        </message>
        <message>
            <source>display services</source>
            <translation>画面の取得元</translation>
        </message>
        <message>
            <source>Displays</source>
            <translation>画面</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>設定</translation>
        </message>
        <message>
            <source>no.</source>
            <translation>番号</translation>
        </message>
        <message>
            <source>name</source>
            <translation>名前</translation>
        </message>
        <message>
            <source>identifier</source>
            <translation>識別子</translation>
        </message>
        <message>
            <source>ramp</source>
            <translation>ランプ</translation>
        </message>
        <message>
            <source>applied</source>
            <translation>適用</translation>
        </message>
        <message>
            <source>monitor</source>
            <translation>モニター</translation>
        </message>
        <message>
            <source>none</source>
            <translation>なし</translation>
        </message>
        <message>
            <source>main</source>
            <translation>メイン</translation>
        </message>
        <message>
            <source>not connected</source>
            <translation>未接続</translation>
        </message>
        <message>
            <source>own</source>
            <translation>自作</translation>
        </message>
        <message>
            <source>Nocturo has switched its effect off and given the displays back.</source>
            <translation>Nocturo は効果をオフにし、画面を元に戻しました。</translation>
        </message>
        <message>
            <source>The displays have been given back, but a Nocturo that does not answer still runs and may change them again.</source>
            <translation>画面を元に戻しましたが、応答しない Nocturo がまだ動作しており、再び変更する可能性があります。</translation>
        </message>
        <message>
            <source>The displays have their own colors back, as they were before Nocturo changed them.</source>
            <translation>画面の色は、Nocturo が変更する前の状態に戻りました。</translation>
        </message>
        <message>
            <source>Nocturo has left no display changed, so nothing was done.</source>
            <translation>Nocturo が変更したままの画面はないため、何も行いませんでした。</translation>
        </message>
        <message>
            <source>The displays have plain colors now, or those of their color profiles.</source>
            <translation>画面は標準の色、またはカラープロファイルの色になりました。</translation>
        </message>
        <message>
            <source>The desktop does not take the color profiles of the displays back; choose them in its settings.</source>
            <translation>デスクトップがディスプレイのカラープロファイルを元に戻せません。デスクトップの設定で選択してください。</translation>
        </message>
        <message>
            <source>%@ does not tell Nocturo of its displays.</source>
            <translation>%@ が画面の情報を Nocturo に返しません。</translation>
        </message>
        <message>
            <source>There is no X server whose displays could be given back, because DISPLAY is not set.</source>
            <translation>DISPLAY が設定されていないため、画面を元に戻す X サーバーがありません。</translation>
        </message>
        <message>
            <source>The X server %@ does not answer.</source>
            <translation>X サーバー %@ が応答しません。</translation>
        </message>
        <message>
            <source>The compositor %@ does not answer.</source>
            <translation>コンポジター %@ が応答しません。</translation>
        </message>
        <message>
            <source>%@ is in front</source>
            <translation>%@ が最前面にあります</translation>
        </message>
        <message>
            <source>a game is running</source>
            <translation>ゲームが動いています</translation>
        </message>
        <message>
            <source>a window fills %@</source>
            <translation>ウィンドウが %@ を占めています</translation>
        </message>
        <message>
            <source>The rules are not in use; nocturoctl rules on changes that.</source>
            <translation>ルールは使われていません。nocturoctl rules on で使われます。</translation>
        </message>
        <message>
            <source>The schedule is not in use; nocturoctl schedule on changes that.</source>
            <translation>スケジュールは使われていません。nocturoctl schedule on で使います。</translation>
        </message>
        <message>
            <source>Nothing is scheduled.</source>
            <translation>予定はありません。</translation>
        </message>
        <message>
            <source>There is no display "%@"; nocturoctl screens lists their numbers, names and identifiers.</source>
            <translation>「%@」という画面はありません。番号、名前、識別子は nocturoctl screens で表示できます。</translation>
        </message>
        <message>
            <source>There is no effect "%@"; the effects are %@.</source>
            <translation>「%@」という効果はありません。使える効果: %@。</translation>
        </message>
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
            <source>Nocturo User Guide</source>
            <translation>Nocturo ユーザーガイド</translation>
        </message>
        <message>
            <source>%@ is held by another program. Choose another hot key.</source>
            <translation>%@ は別のプログラムが使っています。別のショートカットキーを選んでください。</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>コピー</translation>
        </message>
        <message>
            <source>Change...</source>
            <translation>変更...</translation>
        </message>
        <message>
            <source>Ask</source>
            <translation>問い合わせる</translation>
        </message>
        <message>
            <source>Hot key</source>
            <translation>ショートカットキー</translation>
        </message>
        <message>
            <source>Press the new hot key, with Ctrl, Alt or Super, or Escape to leave it as it was.</source>
            <translation>新しいショートカットキーを Ctrl、Alt、Super のいずれかと共に押します。Esc で元のままになります。</translation>
        </message>
        <message>
            <source>Click or press Space to record another shortcut.</source>
            <translation>別のショートカットキーを設定するには、クリックするかスペースキーを押してください。</translation>
        </message>
        <message>
            <source>With Ctrl, Alt or Super</source>
            <translation>Ctrl、Alt、Super と共に</translation>
        </message>
        <message>
            <source>Press keys, Esc cancels</source>
            <translation>キーを押す、Esc で中止</translation>
        </message>
        <message>
            <source>Save as a look...</source>
            <translation>ルックとして保存...</translation>
        </message>
        <message>
            <source>Keeps the effects under a name of your own</source>
            <translation>エフェクトに名前を付けて残します</translation>
        </message>
        <message>
            <source>Change</source>
            <translation>変更</translation>
        </message>
        <message>
            <source>Renames, moves or deletes the look that is marked</source>
            <translation>選ばれているルックの名前や順序を変え、または削除します</translation>
        </message>
        <message>
            <source>A click puts a look on the screens, another one takes it away</source>
            <translation>クリックするとルックが画面に掛かり、もう一度で外れます</translation>
        </message>
        <message>
            <source>Rename...</source>
            <translation>名前を変更...</translation>
        </message>
        <message>
            <source>Move to the front</source>
            <translation>前へ</translation>
        </message>
        <message>
            <source>Move to the back</source>
            <translation>後へ</translation>
        </message>
        <message>
            <source>Delete...</source>
            <translation>削除...</translation>
        </message>
        <message>
            <source>Save as a look</source>
            <translation>ルックとして保存</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Rename Look</source>
            <translation>ルックの名前を変更</translation>
        </message>
        <message>
            <source>Rename</source>
            <translation>変更</translation>
        </message>
        <message>
            <source>Delete the look "%@"?</source>
            <translation>ルック“%@”を削除しますか？</translation>
        </message>
        <message>
            <source>It will be missed by: %@.</source>
            <translation>次で使われています: %@</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>削除</translation>
        </message>
        <message>
            <source>Name:</source>
            <translation>名前:</translation>
        </message>
        <message>
            <source>There is a look "%@" already.</source>
            <translation>「%@」というルックはすでにあります。</translation>
        </message>
        <message>
            <source>Replace</source>
            <translation>置き換える</translation>
        </message>
        <message>
            <source>This desktop shows no tray at the moment; Nocturo can be reached through the applications menu.</source>
            <translation>このデスクトップには現在システムトレイがありません。Nocturo はアプリケーションメニューから操作できます。</translation>
        </message>
        <message>
            <source>“%@” is not an effect document.</source>
            <translation>「%@」は効果のドキュメントではありません。</translation>
        </message>
        <message>
            <source>Opening failed</source>
            <translation>開けませんでした</translation>
        </message>
        <message>
            <source>&amp;Effect</source>
            <translation>効果(&amp;E)</translation>
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
            <source>&amp;Clear Menu</source>
            <translation>履歴を消去(&amp;C)</translation>
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
            <source>&amp;Help</source>
            <translation>ヘルプ(&amp;H)</translation>
        </message>
        <message>
            <source>User &amp;Guide</source>
            <translation>ユーザーガイド(&amp;G)</translation>
        </message>
        <message>
            <source>&amp;About Nocturo</source>
            <translation>Nocturo について(&amp;A)</translation>
        </message>
        <message>
            <source>red</source>
            <translation>赤</translation>
        </message>
        <message>
            <source>orange</source>
            <translation>オレンジ</translation>
        </message>
        <message>
            <source>yellow</source>
            <translation>黄</translation>
        </message>
        <message>
            <source>lime</source>
            <translation>黄緑</translation>
        </message>
        <message>
            <source>green</source>
            <translation>緑</translation>
        </message>
        <message>
            <source>sea green</source>
            <translation>青緑</translation>
        </message>
        <message>
            <source>cyan</source>
            <translation>シアン</translation>
        </message>
        <message>
            <source>azure</source>
            <translation>空色</translation>
        </message>
        <message>
            <source>blue</source>
            <translation>青</translation>
        </message>
        <message>
            <source>violet</source>
            <translation>紫</translation>
        </message>
        <message>
            <source>magenta</source>
            <translation>マゼンタ</translation>
        </message>
        <message>
            <source>pink</source>
            <translation>ピンク</translation>
        </message>
        <message>
            <source>candle</source>
            <translation>ろうそく</translation>
        </message>
        <message>
            <source>tungsten</source>
            <translation>白熱灯</translation>
        </message>
        <message>
            <source>sunset</source>
            <translation>夕日</translation>
        </message>
        <message>
            <source>daylight</source>
            <translation>昼光</translation>
        </message>
        <message>
            <source>The screens are hard to read now. They go back by themselves in %d s.</source>
            <translation>画面が読みにくくなっています。%d 秒後に元の色に戻ります。</translation>
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
            <source>Close anyway</source>
            <translation>このまま閉じる</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message>
            <source>Nocturo effects</source>
            <translation>Nocturo の効果</translation>
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
            <source>As all screens</source>
            <translation>すべての画面と同じ</translation>
        </message>
        <message>
            <source> %</source>
            <translation>%</translation>
        </message>
        <message>
            <source> s</source>
            <translation> 秒</translation>
        </message>
        <message>
            <source>at once</source>
            <translation>すぐに</translation>
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
            <source>brightness from %@ to %@</source>
            <translation>明るさ %@～%@</translation>
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
            <source>%@ (%@)</source>
            <translation>%@ (%@)</translation>
        </message>
        <message>
            <source>&amp;Choose looks by what is in front</source>
            <translation>前面にあるものに応じてルックを選ぶ(&amp;C)</translation>
        </message>
        <message>
            <source>Rules</source>
            <translation>ルール</translation>
        </message>
        <message>
            <source>Of the rules that hold for a screen the first one counts.</source>
            <translation>画面に当てはまるルールのうち、最初のものが有効になります。</translation>
        </message>
        <message>
            <source>As its windows are called</source>
            <translation>ウィンドウのクラス名</translation>
        </message>
        <message>
            <source>P&amp;ick a window</source>
            <translation>ウィンドウを選択(&amp;I)</translation>
        </message>
        <message>
            <source>The next window that comes to the front tells its program</source>
            <translation>次に前面に来るウィンドウからプログラムを読み取ります</translation>
        </message>
        <message>
            <source>&amp;When:</source>
            <translation>条件(&amp;W):</translation>
        </message>
        <message>
            <source>&amp;Program:</source>
            <translation>プログラム(&amp;P):</translation>
        </message>
        <message>
            <source>&amp;Look:</source>
            <translation>ルック(&amp;L):</translation>
        </message>
        <message>
            <source>&amp;Add</source>
            <translation>追加(&amp;A)</translation>
        </message>
        <message>
            <source>&amp;Remove</source>
            <translation>削除(&amp;R)</translation>
        </message>
        <message>
            <source>Move the rule up</source>
            <translation>ルールを上へ移動</translation>
        </message>
        <message>
            <source>Move the rule down</source>
            <translation>ルールを下へ移動</translation>
        </message>
        <message>
            <source>A window fills a screen</source>
            <translation>ウィンドウが画面全体を占める</translation>
        </message>
        <message>
            <source>A program is in front</source>
            <translation>プログラムが前面にある</translation>
        </message>
        <message>
            <source>A game is running</source>
            <translation>ゲームが実行中</translation>
        </message>
        <message>
            <source>No rule holds now.</source>
            <translation>現在当てはまるルールはありません。</translation>
        </message>
        <message>
            <source>Now: %@</source>
            <translation>現在: %@</translation>
        </message>
        <message>
            <source>Now click a window of the program.</source>
            <translation>プログラムのウィンドウをクリックしてください。</translation>
        </message>
        <message>
            <source> min</source>
            <translation> 分</translation>
        </message>
        <message>
            <source>&amp;Choose looks by the clock and the sun</source>
            <translation>時刻と太陽に合わせてルックを選ぶ(&amp;C)</translation>
        </message>
        <message>
            <source>Pa&amp;use</source>
            <translation>一時停止(&amp;U)</translation>
        </message>
        <message>
            <source>A pause gives the screens their own colors for a while.</source>
            <translation>一時停止の間、画面は本来の色に戻ります。</translation>
        </message>
        <message>
            <source>Resu&amp;me</source>
            <translation>再開(&amp;M)</translation>
        </message>
        <message>
            <source>Latitude and longitude, such as 52.5 13.4; by the time zone where empty</source>
            <translation>緯度と経度（例：52.5 13.4）。空ならタイムゾーンによる</translation>
        </message>
        <message>
            <source>How long the colors take to change when a point comes</source>
            <translation>予定の時刻に色が変わるのにかかる時間</translation>
        </message>
        <message>
            <source>&amp;Place of the sun:</source>
            <translation>太陽の場所(&amp;P):</translation>
        </message>
        <message>
            <source>Change o&amp;ver:</source>
            <translation>切り替え時間(&amp;V):</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>スケジュール</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>時刻</translation>
        </message>
        <message>
            <source>Dawn</source>
            <translation>夜明け</translation>
        </message>
        <message>
            <source>Sunrise</source>
            <translation>日の出</translation>
        </message>
        <message>
            <source>Sunset</source>
            <translation>日の入り</translation>
        </message>
        <message>
            <source>Dusk</source>
            <translation>日暮れ</translation>
        </message>
        <message>
            <source>Minutes before or after the sun</source>
            <translation>太陽より前または後の分数</translation>
        </message>
        <message>
            <source>Next: %1$@ at %2$@</source>
            <translation>次：%2$@ に%1$@</translation>
        </message>
        <message>
            <source>Not in use.</source>
            <translation>使用されていません。</translation>
        </message>
        <message>
            <source>Paused until %1$@, %2$@ h left</source>
            <translation>%1$@ まで一時停止中（残り %2$@）</translation>
        </message>
        <message>
            <source>To see what the effects do, start it with --display-services=simulated.</source>
            <translation>効果の働きを見るには --display-services=simulated を付けて起動してください。</translation>
        </message>
        <message>
            <source>%@ offers Nocturo no way to change the colors of displays under Wayland.</source>
            <translation>%@ には、Wayland で Nocturo がディスプレイの色を変える手段がありません。</translation>
        </message>
        <message>
            <source>This desktop</source>
            <translation>このデスクトップ</translation>
        </message>
        <message>
            <source>There is no X server to work with, because DISPLAY is not set.</source>
            <translation>DISPLAY が設定されていないため、使用できる X サーバーがありません。</translation>
        </message>
        <message>
            <source>Another Nocturo drives the displays of the X server %@.</source>
            <translation>別の Nocturo が X サーバー %@ の画面を制御しています。</translation>
        </message>
        <message>
            <source>Another Nocturo drives the displays of %@.</source>
            <translation>別の Nocturo が %@ の画面を制御しています。</translation>
        </message>
        <message>
            <source>Neither GNOME nor Cinnamon is on the session bus.</source>
            <translation>セッションバスに GNOME も Cinnamon もありません。</translation>
        </message>
        <message>
            <source>No Wayland compositor answers.</source>
            <translation>応答する Wayland コンポジターがありません。</translation>
        </message>
        <message>
            <source>Plasma 5 offers Nocturo no way to change the colors of displays under Wayland; choose its X11 session when logging in, or use Plasma 6.</source>
            <translation>Plasma 5 の Wayland では、Nocturo がディスプレイの色を変更する手段がありません。ログイン時に X11 セッションを選ぶか、Plasma 6 をお使いください。</translation>
        </message>
        <message>
            <source>Displays are simulated; their pictures are in %@.</source>
            <translation>画面はシミュレーションです。画像は %@ にあります。</translation>
        </message>
        <message>
            <source>The X server %@ is only a guest of a Wayland session and cannot change its colors; displays under Wayland come with a later version.</source>
            <translation>X サーバー %@ は Wayland セッションのゲストにすぎず、色を変更できません。Wayland の画面には今後のバージョンで対応します。</translation>
        </message>
        <message>
            <source>The X server %@ has no RandR 1.3 or later.</source>
            <translation>X サーバー %@ には RandR 1.3 以降がありません。</translation>
        </message>
        <message>
            <source>The X server %@ cannot be reached.</source>
            <translation>X サーバー %@ に接続できません。</translation>
        </message>
        <message>
            <source>There are no looks.</source>
            <translation>ルックがありません。</translation>
        </message>
        <message>
            <source>No look was applied from which one could go back.</source>
            <translation>戻れるルックは適用されていません。</translation>
        </message>
        <message>
            <source>Night reading</source>
            <translation>夜の読書</translation>
        </message>
        <message>
            <source>Warm evening</source>
            <translation>暖かな夕べ</translation>
        </message>
        <message>
            <source>Red night vision</source>
            <translation>赤い暗視</translation>
        </message>
        <message>
            <source>Just dimmer</source>
            <translation>暗くするだけ</translation>
        </message>
        <message>
            <source>Paper tint</source>
            <translation>紙の色合い</translation>
        </message>
        <message>
            <source>"%@" cannot be the name of a look.</source>
            <translation>「%@」はルックの名前にできません。</translation>
        </message>
        <message>
            <source>The look "%@" comes with Nocturo and stays as it is.</source>
            <translation>ルック「%@」は Nocturo に付属するもので、変更できません。</translation>
        </message>
        <message>
            <source>This desktop takes hot keys from its own settings. Add a shortcut for this command there:</source>
            <translation>このデスクトップはホットキーを自身の設定から読み込みます。そこにこのコマンドのショートカットを追加してください:</translation>
        </message>
        <message>
            <source>This desktop takes hot keys from its own configuration. Put this line there:</source>
            <translation>このデスクトップはホットキーを自身の設定ファイルから読み込みます。次の行をそこに書いてください:</translation>
        </message>
        <message>
            <source>The desktop is asked whether Nocturo may have it.</source>
            <translation>Nocturo が使用してよいかをデスクトップに問い合わせています。</translation>
        </message>
        <message>
            <source>This desktop has not been asked for it yet.</source>
            <translation>このデスクトップにはまだ問い合わせていません。</translation>
        </message>
        <message>
            <source>The desktop has refused it.</source>
            <translation>デスクトップに拒否されました。</translation>
        </message>
        <message>
            <source>The desktop has it as %@; its own settings change that.</source>
            <translation>デスクトップでは %@ として登録されています。変更はデスクトップの設定で行います。</translation>
        </message>
        <message>
            <source>A hot key is one key and any of ctrl, alt, shift and super, joined by +, such as ctrl+super+F5; nocturoctl hotkey --help lists the keys.</source>
            <translation>ショートカットキーは、1 つのキーと任意の ctrl、alt、shift、super を + でつないだものです (例: ctrl+super+F5)。キーの一覧は nocturoctl hotkey --help で表示されます。</translation>
        </message>
        <message>
            <source>No hot key was given.</source>
            <translation>ショートカットキーが指定されていません。</translation>
        </message>
        <message>
            <source>"%@" has a plus sign with nothing before or after it.</source>
            <translation>「%@」には、前か後ろに何もないプラス記号があります。</translation>
        </message>
        <message>
            <source>"%@" and "%@" are both keys, but a hot key has only one.</source>
            <translation>「%@」と「%@」はどちらもキーですが、ショートカットキーに使えるキーは 1 つだけです。</translation>
        </message>
        <message>
            <source>"%@" has no key besides its modifiers.</source>
            <translation>「%@」には修飾キー以外のキーがありません。</translation>
        </message>
        <message>
            <source>"%@" is not a key's name, and no key of the current keyboard layout types it.</source>
            <translation>「%@」はキーの名前ではなく、現在のキーボード配列で入力できるキーもありません。</translation>
        </message>
        <message>
            <source>"%@" is not a key's name, and the keyboard layout that could tell which key types it cannot be read.</source>
            <translation>「%@」はキーの名前ではありません。どのキーで入力されるかを示すキーボード配列も読み取れません。</translation>
        </message>
        <message>
            <source>"%@" needs a modifier: only function, arrow and navigation keys can be hot keys alone.</source>
            <translation>「%@」には修飾キーが必要です。単独で使えるのはファンクションキー、矢印キー、ナビゲーションキーだけです。</translation>
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
            <translation>スペース</translation>
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
            <translation>音量を上げる</translation>
        </message>
        <message>
            <source>Volume Down</source>
            <translation>音量を下げる</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>消音</translation>
        </message>
        <message>
            <source>Menu</source>
            <translation>メニュー</translation>
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
            <translation>←</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>→</translation>
        </message>
        <message>
            <source>Down</source>
            <translation>↓</translation>
        </message>
        <message>
            <source>Up</source>
            <translation>↑</translation>
        </message>
        <message>
            <source>Activate or Deactivate Effect</source>
            <translation>効果をオンまたはオフにする</translation>
        </message>
        <message>
            <source>Windows come with the package nocturo-desktop, which is not installed.</source>
            <translation>ウインドウはパッケージ nocturo-desktop に含まれていますが、インストールされていません。</translation>
        </message>
        <message>
            <source>Windows cannot be shown: %@.</source>
            <translation>ウインドウを表示できません: %@。</translation>
        </message>
        <message>
            <source>Windows cannot be shown before Nocturo is started again, because another version was installed meanwhile.</source>
            <translation>別のバージョンがインストールされたため、Nocturo を再起動するまでウインドウを表示できません。</translation>
        </message>
        <message>
            <source>The display server has gone, so Nocturo ends.</source>
            <translation>ディスプレイサーバーがなくなったため、Nocturo を終了します。</translation>
        </message>
        <message>
            <source>Nocturo is already running.</source>
            <translation>Nocturo はすでに起動しています。</translation>
        </message>
        <message>
            <source>The runtime directory cannot be used; set XDG_RUNTIME_DIR to one of yours.</source>
            <translation>ランタイムディレクトリを使用できません。XDG_RUNTIME_DIR に自分のディレクトリを指定してください。</translation>
        </message>
        <message>
            <source>Nocturo starts switched off, because nocturoctl restore gave the displays back.</source>
            <translation>nocturoctl restore で画面が元に戻されたため、Nocturo をオフの状態で起動しました。</translation>
        </message>
        <message>
            <source>Nocturo starts switched off.</source>
            <translation>Nocturo をオフの状態で起動しました。</translation>
        </message>
        <message>
            <source>Changes how whole screens look: inverted, overexposed, dimmed or lightened, in
the HDTV range or through a color filter. Runs until it is told to quit, and
gives every display back then. Drive it with nocturoctl.</source>
            <translation>画面全体の見え方を変えます: 反転、露出オーバー、暗くする・明るくする、HDTV の
範囲、カラーフィルター。終了するまで動作し、終了時にすべての画面を元に戻します。
nocturoctl で操作します。</translation>
        </message>
        <message>
            <source>Options:</source>
            <translation>オプション:</translation>
        </message>
        <message>
            <source>where the displays come from:</source>
            <translation>画面の取得元:</translation>
        </message>
        <message>
            <source>what this session offers (default)</source>
            <translation>このセッションで使えるもの (既定)</translation>
        </message>
        <message>
            <source>an X server</source>
            <translation>X サーバー</translation>
        </message>
        <message>
            <source>a Wayland compositor like sway</source>
            <translation>sway などの Wayland コンポジター</translation>
        </message>
        <message>
            <source>GNOME or Cinnamon</source>
            <translation>GNOME または Cinnamon</translation>
        </message>
        <message>
            <source>KDE Plasma 6</source>
            <translation>KDE Plasma 6</translation>
        </message>
        <message>
            <source>N displays, 1 to 16 (default 2),</source>
            <translation>N 個の画面、1～16 (既定は 2)、</translation>
        </message>
        <message>
            <source>in memory, drawn into pictures</source>
            <translation>メモリ上で、画像に描画</translation>
        </message>
        <message>
            <source>start with the effect off</source>
            <translation>エフェクトをオフにして起動</translation>
        </message>
        <message>
            <source>start with the session, asking nothing</source>
            <translation>何も尋ねずにセッションと共に起動</translation>
        </message>
        <message>
            <source>show this text</source>
            <translation>この説明を表示</translation>
        </message>
        <message>
            <source>show the version</source>
            <translation>バージョンを表示</translation>
        </message>
        <message>
            <source>A FILE is an effect document (.nocturo) to open, by the Nocturo that runs if
there is one. Starting Nocturo a second time without one toggles the effect.</source>
            <translation>FILE は開く効果ドキュメント (.nocturo) です。Nocturo がすでに起動していれば、
そちらで開きます。FILE なしで再び起動すると、効果のオン／オフを切り替えます。</translation>
        </message>
        <message>
            <source>There is no option "%@"; see nocturo --help.</source>
            <translation>「%@」というオプションはありません。nocturo --help を参照してください。</translation>
        </message>
        <message>
            <source>--display-services takes %@ or simulated:N with N from 1 to 16.</source>
            <translation>--display-services に指定できるのは %@、simulated:N (N は 1～16) です。</translation>
        </message>
        <message>
            <source>Without a session bus the Nocturo that runs cannot be given a document.</source>
            <translation>セッションバスがないため、起動中の Nocturo にドキュメントを渡せません。</translation>
        </message>
        <message>
            <source>"%@" is no identifier of a display with a look, such as 71524911 Night reading.</source>
            <translation>「%@」は画面の識別子とルックではありません。例: 71524911 Night reading</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ looks at most.</source>
            <translation>「%1$@」には最大 %2$@ 個のルックのリストを指定します。</translation>
        </message>
        <message>
            <source>"%@" is no rule, such as fullscreen off or program mpv Warm evening.</source>
            <translation>「%@」は fullscreen off や program mpv Warm evening のようなルールではありません。</translation>
        </message>
        <message>
            <source>"%@" is no point of a schedule, such as 07:00 off or sunset-00:30 Warm evening.</source>
            <translation>「%@」は 07:00 off や sunset-00:30 Warm evening のようなスケジュールのポイントではありません。</translation>
        </message>
        <message>
            <source>It holds until Nocturo quits; the settings cannot be saved to %1$@ (%2$@).</source>
            <translation>Nocturo が終了するまで有効です。設定を %1$@ に保存できません (%2$@)。</translation>
        </message>
        <message>
            <source>the file that is there cannot be read</source>
            <translation>そこにあるファイルを読めません</translation>
        </message>
        <message>
            <source>the selected effects</source>
            <translation>選択された効果</translation>
        </message>
        <message>
            <source>switch the effect on at every start</source>
            <translation>起動のたびに効果をオンにする</translation>
        </message>
        <message>
            <source>starting Nocturo again toggles the effect</source>
            <translation>Nocturo を再び起動すると効果を切り替える</translation>
        </message>
        <message>
            <source>while on, apply again every 6 seconds</source>
            <translation>オンの間、6 秒ごとに再適用する</translation>
        </message>
        <message>
            <source>pause while the screen saver runs</source>
            <translation>スクリーンセーバーの実行中は一時停止する</translation>
        </message>
        <message>
            <source>toggle with the global hot key</source>
            <translation>グローバルショートカットキーで切り替える</translation>
        </message>
        <message>
            <source>1: run as a tray item</source>
            <translation>1: システムトレイのアイコンとして動作</translation>
        </message>
        <message>
            <source>virtual key code of the hot key</source>
            <translation>ショートカットキーの仮想キーコード</translation>
        </message>
        <message>
            <source>modifier flags of the hot key</source>
            <translation>ショートカットキーの修飾キー (ビット)</translation>
        </message>
        <message>
            <source>whether the effect was last switched on</source>
            <translation>最後に効果がオンだったかどうか</translation>
        </message>
        <message>
            <source>the affected displays; none means all</source>
            <translation>対象の画面。なしはすべてを意味する</translation>
        </message>
        <message>
            <source>the display last picked; 0 means all</source>
            <translation>最後に選んだ画面。0 はすべてを意味する</translation>
        </message>
        <message>
            <source>dim: -1 black, 0 unchanged, 1 white</source>
            <translation>暗くする: -1 は黒、0 は変更なし、1 は白</translation>
        </message>
        <message>
            <source>color filter: hue in degrees</source>
            <translation>カラーフィルター: 色相 (度)</translation>
        </message>
        <message>
            <source>color filter: strength, 0 to 1</source>
            <translation>カラーフィルター: 強さ、0～1</translation>
        </message>
        <message>
            <source>seconds that a change fades for, 0 to 5</source>
            <translation>変化にかける秒数 (0〜5)</translation>
        </message>
        <message>
            <source>switch and choose looks by the schedule</source>
            <translation>スケジュールで切り替えとルックの選択を行う</translation>
        </message>
        <message>
            <source>the schedule: times with looks or off</source>
            <translation>スケジュール: 時刻とルックまたは off</translation>
        </message>
        <message>
            <source>where the sun is looked at; empty: by the time zone</source>
            <translation>太陽を見る場所。空ならタイムゾーンによる</translation>
        </message>
        <message>
            <source>minutes that a change by the schedule fades for, 0 to 60</source>
            <translation>スケジュールによる変化にかける分数 (0〜60)</translation>
        </message>
        <message>
            <source>switch and choose looks by the rules</source>
            <translation>ルールで切り替えとルックの選択を行う</translation>
        </message>
        <message>
            <source>the rules: what is in front, with looks or off</source>
            <translation>ルール: 最前面にあるものと、ルックまたは off</translation>
        </message>
        <message>
            <source>displays by identifier with looks of their own</source>
            <translation>独自のルックを持つ画面 (識別子ごと)</translation>
        </message>
        <message>
            <source>the f.lux warning was answered</source>
            <translation>f.lux についての警告に回答済み</translation>
        </message>
        <message>
            <source>"%@" takes a list of effects.</source>
            <translation>「%@」には効果のリストを指定します。</translation>
        </message>
        <message>
            <source>"%@" takes a list of effect names.</source>
            <translation>「%@」には効果の名前のリストを指定します。</translation>
        </message>
        <message>
            <source>"%1$@" takes effects only, and there is no effect "%2$@".</source>
            <translation>「%1$@」には効果だけを指定できますが、「%2$@」という効果はありません。</translation>
        </message>
        <message>
            <source>"%@" takes a place such as 52.5 13.4 or 33.9S 151.2E.</source>
            <translation>「%@」には 52.5 13.4 や 33.9S 151.2E のような場所を指定します。</translation>
        </message>
        <message>
            <source>"%@" takes true or false.</source>
            <translation>「%@」には true か false を指定します。</translation>
        </message>
        <message>
            <source>"%@" takes a whole number.</source>
            <translation>「%@」には整数を指定します。</translation>
        </message>
        <message>
            <source>"%@" takes a finite number.</source>
            <translation>「%@」には有限の数を指定します。</translation>
        </message>
        <message>
            <source>"%@" takes a list of display identifiers.</source>
            <translation>「%@」には画面の識別子のリストを指定します。</translation>
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
