<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
    <context>
        <name>NocturoPreferencePanel</name>
        <message>
            <source>Nocturo Preferences</source>
            <translation>Nocturo 首选项</translation>
        </message>
        <message>
            <source>Switches the effect on or off (Ctrl+E)</source>
            <translation>打开或关闭效果（Ctrl+E）</translation>
        </message>
        <message>
            <source>Effect</source>
            <translation>效果</translation>
        </message>
        <message>
            <source>Nocturo can stay at hand as an icon in the panel's tray.</source>
            <translation>Nocturo 可以作为图标留在面板的托盘中。</translation>
        </message>
        <message>
            <source>The icon then switches the effect and leads back to this window</source>
            <translation>之后可用该图标切换效果并回到此窗口</translation>
        </message>
        <message>
            <source>Stay in the tray</source>
            <translation>留在托盘中</translation>
        </message>
        <message>
            <source>The page "Switching" has this choice, too</source>
            <translation>“开关”页中也有此选项</translation>
        </message>
        <message>
            <source>Not now</source>
            <translation>暂时不要</translation>
        </message>
        <message>
            <source>Looks and effects</source>
            <translation>外观与效果</translation>
        </message>
        <message>
            <source>&amp;Invert</source>
            <translation>反转(&amp;I)</translation>
        </message>
        <message>
            <source>Swaps light and dark</source>
            <translation>将明暗互换</translation>
        </message>
        <message>
            <source>&amp;Overexpose</source>
            <translation>过曝(&amp;O)</translation>
        </message>
        <message>
            <source>Makes light tones white, so that stripes and backgrounds in light gray vanish</source>
            <translation>将浅色调变为白色，使浅灰色的条纹和背景消失</translation>
        </message>
        <message>
            <source>HDT&amp;V range</source>
            <translation>HDTV 范围(&amp;V)</translation>
        </message>
        <message>
            <source>Fits the picture into the luminance range of a television, 16 to 235</source>
            <translation>将画面压缩到电视的亮度范围（16 到 235）</translation>
        </message>
        <message>
            <source>&amp;Color filter</source>
            <translation>颜色滤镜(&amp;C)</translation>
        </message>
        <message>
            <source>Tints the screen as colored glass would</source>
            <translation>像隔着彩色玻璃一样为屏幕着色</translation>
        </message>
        <message>
            <source>&amp;Temperature:</source>
            <translation>色温(&amp;T)：</translation>
        </message>
        <message>
            <source>The color filter as warm or cool light, from candles to the sky; empty while it is another color</source>
            <translation>将颜色滤镜表示为从烛光到天空的暖光或冷光；为其他颜色时为空</translation>
        </message>
        <message>
            <source>H&amp;ue:</source>
            <translation>色相(&amp;U)：</translation>
        </message>
        <message>
            <source>The color that passes the filter</source>
            <translation>滤镜允许通过的颜色</translation>
        </message>
        <message>
            <source>Vivi&amp;dness:</source>
            <translation>鲜艳度(&amp;D)：</translation>
        </message>
        <message>
            <source>How much of the other colors the filter takes away</source>
            <translation>滤镜去除其他颜色的程度</translation>
        </message>
        <message>
            <source>Di&amp;m or lighten</source>
            <translation>调暗或调亮(&amp;M)</translation>
        </message>
        <message>
            <source>Moves every color toward black or toward white</source>
            <translation>使所有颜色趋向黑色或白色</translation>
        </message>
        <message>
            <source>Level</source>
            <translation>程度</translation>
        </message>
        <message>
            <source>Negative values make the screen darker, positive ones lighter</source>
            <translation>负值使屏幕变暗，正值使屏幕变亮</translation>
        </message>
        <message>
            <source>A&amp;pply to:</source>
            <translation>应用于(&amp;P)：</translation>
        </message>
        <message>
            <source>The screens that the effect is applied to</source>
            <translation>应用效果的屏幕</translation>
        </message>
        <message>
            <source>Sho&amp;w:</source>
            <translation>显示(&amp;W)：</translation>
        </message>
        <message>
            <source>The screen whose curves are shown</source>
            <translation>显示其曲线的屏幕</translation>
        </message>
        <message>
            <source>Cu&amp;rves</source>
            <translation>曲线(&amp;R)</translation>
        </message>
        <message>
            <source>Shows beside the picture what becomes of each color channel</source>
            <translation>在图片旁显示每个颜色通道的变化</translation>
        </message>
        <message>
            <source>Its loo&amp;k:</source>
            <translation>外观方案(&amp;K)：</translation>
        </message>
        <message>
            <source>What this screen shows in place of the effects of all, also when it comes back</source>
            <translation>此屏幕显示的外观方案，代替所有屏幕的效果，重新连接后依然有效</translation>
        </message>
        <message>
            <source>Switching</source>
            <translation>开关</translation>
        </message>
        <message>
            <source>Otherwise Nocturo starts as you left it</source>
            <translation>否则 Nocturo 会以上次退出时的状态启动</translation>
        </message>
        <message>
            <source>Switch on when Nocturo s&amp;tarts</source>
            <translation>Nocturo 启动时启用(&amp;T)</translation>
        </message>
        <message>
            <source>Nocturo is then there after every login</source>
            <translation>每次登录后 Nocturo 都会在</translation>
        </message>
        <message>
            <source>Start &amp;with the session</source>
            <translation>随会话启动(&amp;W)</translation>
        </message>
        <message>
            <source>Switch on or off when Nocturo is started a&amp;gain</source>
            <translation>再次启动 Nocturo 时启用或停用(&amp;G)</translation>
        </message>
        <message>
            <source>A click on its icon in the launcher then works as a switch</source>
            <translation>这样单击启动器中的图标即可开关效果</translation>
        </message>
        <message>
            <source>&amp;Reapply every six seconds</source>
            <translation>每六秒重新应用一次(&amp;R)</translation>
        </message>
        <message>
            <source>Keeps the effect when games or other programs reset the colors</source>
            <translation>当游戏或其他程序重置颜色时保持效果</translation>
        </message>
        <message>
            <source>The screen saver then shows its own colors</source>
            <translation>屏幕保护程序将显示其原本的颜色</translation>
        </message>
        <message>
            <source>P&amp;ause while the screen saver runs</source>
            <translation>屏幕保护程序运行时暂停(&amp;A)</translation>
        </message>
        <message>
            <source>Works in every program, when you let go of the key</source>
            <translation>在所有程序中有效，松开按键时生效</translation>
        </message>
        <message>
            <source>Switch with the hot &amp;key</source>
            <translation>使用快捷键开关(&amp;K)</translation>
        </message>
        <message>
            <source>Leaves Nocturo without a hot key</source>
            <translation>让 Nocturo 没有快捷键</translation>
        </message>
        <message>
            <source>Clear the hot key</source>
            <translation>清除快捷键</translation>
        </message>
        <message>
            <source>Fa&amp;de:</source>
            <translation>渐变(&amp;D)：</translation>
        </message>
        <message>
            <source>How long the colors take to change when the effect is switched</source>
            <translation>切换效果时颜色变化所需的时间</translation>
        </message>
        <message>
            <source>Show Nocturo:</source>
            <translation>Nocturo 的显示方式：</translation>
        </message>
        <message>
            <source>Nocturo then has no icon of its own in the panel</source>
            <translation>此时面板中没有 Nocturo 的图标</translation>
        </message>
        <message>
            <source>As an ordinary application, in the task &amp;bar and launcher</source>
            <translation>作为普通应用程序，在任务栏和启动器中(&amp;B)</translation>
        </message>
        <message>
            <source>A click on the icon shows Nocturo's menu, a middle click switches the effect</source>
            <translation>单击图标显示 Nocturo 的菜单，中键单击切换效果</translation>
        </message>
        <message>
            <source>As an icon in the panel's tra&amp;y</source>
            <translation>作为面板系统托盘中的图标(&amp;Y)</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>计划</translation>
        </message>
        <message>
            <source>Rules</source>
            <translation>规则</translation>
        </message>
        <message>
            <source>Ope&amp;n...</source>
            <translation>打开(&amp;N)...</translation>
        </message>
        <message>
            <source>Take the effects from a document</source>
            <translation>从文档中读取效果</translation>
        </message>
        <message>
            <source>&amp;Save...</source>
            <translation>保存(&amp;S)...</translation>
        </message>
        <message>
            <source>Save the effects as a document</source>
            <translation>将效果保存为文档</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>关闭</translation>
        </message>
    </context>
    <context>
        <name>Localizable</name>
        <message>
            <source>No effect has been chosen.</source>
            <translation>尚未选择任何效果。</translation>
        </message>
        <message>
            <source>You should check at least one box in the preference panel relating to the screen effect, or Nocturo will have no visible effect on your screen.</source>
            <translation>请在首选项中至少选中一项屏幕效果，否则 Nocturo 不会使您的屏幕产生任何可见的变化。</translation>
        </message>
        <message>
            <source>Open preferences...</source>
            <translation>打开首选项...</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Preferences...</source>
            <translation>首选项...</translation>
        </message>
        <message>
            <source>About Nocturo</source>
            <translation>关于 Nocturo</translation>
        </message>
        <message>
            <source>Quit Nocturo</source>
            <translation>退出 Nocturo</translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>暂停</translation>
        </message>
        <message>
            <source>30 minutes</source>
            <translation>30 分钟</translation>
        </message>
        <message>
            <source>1 hour</source>
            <translation>1 小时</translation>
        </message>
        <message>
            <source>Until tomorrow</source>
            <translation>直到明天</translation>
        </message>
        <message>
            <source>&amp;Deactivate Effect</source>
            <translation>停用效果(&amp;D)</translation>
        </message>
        <message>
            <source>&amp;Activate Effect</source>
            <translation>启用效果(&amp;A)</translation>
        </message>
        <message>
            <source>Deactivate Effect</source>
            <translation>停用效果</translation>
        </message>
        <message>
            <source>Activate Effect</source>
            <translation>启用效果</translation>
        </message>
        <message>
            <source>Open Recent</source>
            <translation>打开最近的文件</translation>
        </message>
        <message>
            <source>Invert</source>
            <translation>反转</translation>
        </message>
        <message>
            <source>Overexpose</source>
            <translation>过度曝光</translation>
        </message>
        <message>
            <source>Dim or lighten</source>
            <translation>调暗或调亮</translation>
        </message>
        <message>
            <source>Color filter</source>
            <translation>颜色滤镜</translation>
        </message>
        <message>
            <source>HDTV range</source>
            <translation>HDTV 范围</translation>
        </message>
        <message>
            <source>Effects</source>
            <translation>效果</translation>
        </message>
        <message>
            <source>and %d more</source>
            <translation>以及另外 %d 个</translation>
        </message>
        <message>
            <source>Looks</source>
            <translation>外观方案</translation>
        </message>
        <message>
            <source>All Screens</source>
            <translation>所有屏幕</translation>
        </message>
        <message>
            <source>Screen %d</source>
            <translation>屏幕 %d</translation>
        </message>
        <message>
            <source>, %d</source>
            <translation>、%d</translation>
        </message>
        <message>
            <source>None</source>
            <translation>无</translation>
        </message>
        <message>
            <source>%@, not connected</source>
            <translation>%@（未连接）</translation>
        </message>
        <message>
            <source>Lighten %@</source>
            <translation>调亮 %@</translation>
        </message>
        <message>
            <source>Dim %@</source>
            <translation>调暗 %@</translation>
        </message>
        <message>
            <source>Color filter %1$@° %2$@ %%</source>
            <translation>颜色滤镜 %1$@° %2$@%%</translation>
        </message>
        <message>
            <source>all screens</source>
            <translation>所有屏幕</translation>
        </message>
        <message>
            <source>screens that are not connected</source>
            <translation>未连接的屏幕</translation>
        </message>
        <message>
            <source>On, but no effect is chosen</source>
            <translation>已打开，但未选择任何效果</translation>
        </message>
        <message>
            <source>On: %1$@ on %2$@</source>
            <translation>已打开：%2$@上应用 %1$@</translation>
        </message>
        <message>
            <source>%1$@, but not on %2$@</source>
            <translation>%1$@，%2$@ 除外</translation>
        </message>
        <message>
            <source>Paused while %@ runs</source>
            <translation>%@ 运行期间暂停</translation>
        </message>
        <message>
            <source>Paused until you go on</source>
            <translation>已暂停，直到您继续</translation>
        </message>
        <message>
            <source>Paused until %@</source>
            <translation>已暂停至 %@</translation>
        </message>
        <message>
            <source>%@; by hand</source>
            <translation>%@；手动</translation>
        </message>
        <message>
            <source>%1$@; by hand until %2$@ or a rule holds</source>
            <translation>%1$@；手动，直到 %2$@ 或有规则成立</translation>
        </message>
        <message>
            <source>%1$@; by hand until %2$@</source>
            <translation>%1$@；手动，至 %2$@</translation>
        </message>
        <message>
            <source>%1$@; by the rule "%2$@"</source>
            <translation>%1$@；按规则“%2$@”</translation>
        </message>
        <message>
            <source>%@; by the schedule</source>
            <translation>%@；按计划</translation>
        </message>
        <message>
            <source>%1$@; by the schedule until %2$@</source>
            <translation>%1$@；按计划，至 %2$@</translation>
        </message>
        <message>
            <source>%@, its own look</source>
            <translation>%@，自己的外观方案</translation>
        </message>
        <message>
            <source>Off</source>
            <translation>关</translation>
        </message>
        <message>
            <source>On</source>
            <translation>开</translation>
        </message>
        <message>
            <source>%1$@. %2$@: %3$@</source>
            <translation>%1$@。%2$@：%3$@</translation>
        </message>
        <message>
            <source>Off. Choose effects, then switch on</source>
            <translation>已关闭。请选择效果，然后打开</translation>
        </message>
        <message>
            <source>Off. When on: %@</source>
            <translation>已关闭。打开后：%@</translation>
        </message>
        <message>
            <source>%@ %%</source>
            <translation>%@%%</translation>
        </message>
        <message>
            <source>Paused: screen saver</source>
            <translation>已暂停：屏幕保护程序</translation>
        </message>
        <message>
            <source>Nobody knows when that is: "%@".</source>
            <translation>无法得知那是何时：“%@”。</translation>
        </message>
        <message>
            <source>There is no look "%@".</source>
            <translation>没有外观方案“%@”。</translation>
        </message>
        <message>
            <source>The time zone has no place for the sun; set one with: nocturoctl set SchedulePlace "52.5 13.4"</source>
            <translation>该时区没有用于计算太阳的地点；请设置：nocturoctl set SchedulePlace "52.5 13.4"</translation>
        </message>
        <message>
            <source>"%@" is no length of a pause, such as 30m, 2h or 1h30m, up to 366d.</source>
            <translation>“%@”不是暂停的时长，例如 30m、2h 或 1h30m，最长 366d。</translation>
        </message>
        <message>
            <source>"%@" is no time to pause for, such as 30m, 2h, until 18:00 or until sunset.</source>
            <translation>“%@”不是暂停的时间，例如 30m、2h、until 18:00 或 until sunset。</translation>
        </message>
        <message>
            <source>Nobody could read the screens under the look "%@"; it means off until it is changed.</source>
            <translation>在外观方案“%@”下无人能看清屏幕；在更改之前，它表示关闭。</translation>
        </message>
        <message>
            <source>This desktop does not tell which window is in front.</source>
            <translation>此桌面不告知哪个窗口在最前面。</translation>
        </message>
        <message>
            <source>There is no look "%@"; the name of a program with spaces stands between quotation marks.</source>
            <translation>没有外观方案“%@”；含空格的程序名要放在引号中。</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ rules at most.</source>
            <translation>“%1$@”接受最多 %2$@ 条规则的列表。</translation>
        </message>
        <message>
            <source>There is no rule %@.</source>
            <translation>没有规则 %@。</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ points at most.</source>
            <translation>“%1$@”最多接受 %2$@ 个时间点的列表。</translation>
        </message>
        <message>
            <source>The schedule has no point %@.</source>
            <translation>计划中没有第 %@ 个时间点。</translation>
        </message>
        <message>
            <source>There is no setting "%@".</source>
            <translation>没有设置“%@”。</translation>
        </message>
        <message>
            <source>"%@" is no absolute path.</source>
            <translation>“%@”不是绝对路径。</translation>
        </message>
        <message>
            <source>No setting takes a value of this type.</source>
            <translation>没有设置接受此类型的值。</translation>
        </message>
        <message>
            <source>The display server keeps %@ to itself, so it cannot be the hot key.</source>
            <translation>显示服务器自己占用 %@，因此不能用作快捷键。</translation>
        </message>
        <message>
            <source>"%@" is not an effect document.</source>
            <translation>“%@”不是效果文档。</translation>
        </message>
        <message>
            <source>Could not save settings at "%@": %@.</source>
            <translation>无法将设置保存到“%@”：%@。</translation>
        </message>
        <message>
            <source>A temperature is from 1000 to 25000 K.</source>
            <translation>色温范围为 1000 到 25000 K。</translation>
        </message>
        <message>
            <source>The color filter has a hue and a vividness that are no temperature.</source>
            <translation>颜色滤镜的色相和鲜艳度不对应任何色温。</translation>
        </message>
        <message>
            <source>"%@" is no setting that goes in steps.</source>
            <translation>“%@”不是可以步进的设置。</translation>
        </message>
        <message>
            <source>One display has to stay, as a choice of none means all; nocturoctl off switches the effect off.</source>
            <translation>必须保留一个屏幕，因为不选任何屏幕表示全部；nocturoctl off 可关闭效果。</translation>
        </message>
        <message>
            <source>There is no display with the identifier %d.</source>
            <translation>没有标识符为 %d 的屏幕。</translation>
        </message>
        <message>
            <source>These are not effect documents: %@</source>
            <translation>以下不是效果文档：%@</translation>
        </message>
        <message>
            <source>Nocturo waits for the answer to the question that it shows.</source>
            <translation>Nocturo 正在等待对所显示问题的回答。</translation>
        </message>
        <message>
            <source>No more than %d documents can be opened at once.</source>
            <translation>一次最多只能打开 %d 个文档。</translation>
        </message>
        <message>
            <source>Nocturo answered something that this version does not understand.</source>
            <translation>Nocturo 的回答是此版本无法理解的。</translation>
        </message>
        <message>
            <source>Nocturo is not running.</source>
            <translation>Nocturo 未在运行。</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>已暂停</translation>
        </message>
        <message>
            <source>Nocturo is not running; start it with: nocturo &amp;</source>
            <translation>Nocturo 未在运行；请用此命令启动：nocturo &amp;</translation>
        </message>
        <message>
            <source>The session bus failed: %@.</source>
            <translation>会话总线出错：%@。</translation>
        </message>
        <message>
            <source>There is no session bus over which Nocturo could be reached; start it inside a desktop session with: nocturo &amp;</source>
            <translation>没有可用来联系 Nocturo 的会话总线；请在桌面会话中用此命令启动：nocturo &amp;</translation>
        </message>
        <message>
            <source>The Nocturo that runs does not answer.</source>
            <translation>正在运行的 Nocturo 没有响应。</translation>
        </message>
        <message>
            <source>Nocturo did not do it: %@</source>
            <translation>Nocturo 未能执行：%@</translation>
        </message>
        <message>
            <source>There is no setting "%@"; nocturoctl status --all lists them.</source>
            <translation>没有设置“%@”；nocturoctl status --all 会列出全部设置。</translation>
        </message>
        <message>
            <source>No hot key is chosen.</source>
            <translation>尚未选择快捷键。</translation>
        </message>
        <message>
            <source>%@  (not enabled; nocturoctl hotkey enable)</source>
            <translation>%@  （未启用；nocturoctl hotkey enable）</translation>
        </message>
        <message>
            <source>%@  (not in force: another program holds it, or the desktop offers no hot keys)</source>
            <translation>%@  （未生效：被其他程序占用，或桌面不提供快捷键）</translation>
        </message>
        <message>
            <source>Name a file.</source>
            <translation>请指定一个文件。</translation>
        </message>
        <message>
            <source>There is no such file: %@</source>
            <translation>没有这个文件：%@</translation>
        </message>
        <message>
            <source>No display is online.</source>
            <translation>没有已连接的屏幕。</translation>
        </message>
        <message>
            <source>The file "%@" cannot be written.</source>
            <translation>无法写入文件“%@”。</translation>
        </message>
        <message>
            <source>Switch the effect on</source>
            <translation>启用效果</translation>
        </message>
        <message>
            <source>--fade has it come little by little, in up to 5 seconds.</source>
            <translation>使用 --fade 时效果会逐渐出现，最长 5 秒。</translation>
        </message>
        <message>
            <source>Switch the effect off</source>
            <translation>停用效果</translation>
        </message>
        <message>
            <source>Every display gets its own colors back.</source>
            <translation>每个屏幕恢复其原本的颜色。</translation>
        </message>
        <message>
            <source>Switch the effect on or off</source>
            <translation>启用或停用效果</translation>
        </message>
        <message>
            <source>Bind this to a key. --fade has it come and go little by little, in up to 5 seconds.</source>
            <translation>请绑定到一个按键。使用 --fade 时会在最多 5 秒内逐渐出现和消失。</translation>
        </message>
        <message>
            <source>Switch the effect off for a time</source>
            <translation>暂时关闭效果</translation>
        </message>
        <message>
            <source>For so long, such as 30m, 2h or 1h30m; until 18:00, sunrise, tomorrow,
which is six in the morning, or next, the schedule's next point; while a command
runs; or until you switch the effect or say cancel.</source>
            <translation>持续这么久，例如 30m、2h 或 1h30m；until 18:00、sunrise（日出）、tomorrow（早上六点）
或 next（计划的下一个点）；while 表示命令运行期间；否则直到您切换效果或使用 cancel。</translation>
        </message>
        <message>
            <source>Show or change what happens by the clock and the sun</source>
            <translation>显示或更改按时钟和太阳发生的事</translation>
        </message>
        <message>
            <source>A POINT is a time and a look or off: 07:00 off, sunset-00:30 Warm evening. Instead of a
time of day it may have dawn, sunrise, sunset or dusk. list and next take --json.</source>
            <translation>POINT 是时间加外观方案或 off：07:00 off、sunset-00:30 Warm evening。可以用 dawn、sunrise、
sunset 或 dusk 代替时间。list 和 next 接受 --json。</translation>
        </message>
        <message>
            <source>Show or change what happens while programs are in front</source>
            <translation>显示或更改程序在最前面时的行为</translation>
        </message>
        <message>
            <source>A RULE is fullscreen, program NAME or game, and a look or off: fullscreen off,
program mpv Warm evening. The first one that holds for a display counts. list takes
--json.</source>
            <translation>RULE 是 fullscreen、program NAME 或 game，加上一个外观方案或 off：fullscreen off、
program mpv Warm evening。对某个显示器成立的第一条规则有效。list 可带
--json。</translation>
        </message>
        <message>
            <source>Show the state of everything</source>
            <translation>显示所有状态</translation>
        </message>
        <message>
            <source>With --all, every setting as well; with --json, one object for programs; with --bar,
a line for a bar: waybar, polybar or i3status-rust. --follow prints another line at
each change, whether Nocturo runs or comes later.</source>
            <translation>--all 另外显示每项设置；--json 显示供程序使用的一个对象；--bar 显示供状态栏使用的一行：
waybar、polybar 或 i3status-rust。--follow 在每次变化时再显示一行，
无论 Nocturo 正在运行还是稍后启动。</translation>
        </message>
        <message>
            <source>List or choose the effects</source>
            <translation>列出或选择效果</translation>
        </message>
        <message>
            <source>NAME is invert, overexposure, dim, color-filter or hdtv-luminance, or a class
name. add, remove and toggle change the selection, only replaces it.</source>
            <translation>NAME 是 invert、overexposure、dim、color-filter 或 hdtv-luminance，或类名。
add、remove 和 toggle 更改选择，only 替换选择。</translation>
        </message>
        <message>
            <source>Show the dim level, dim or lighten</source>
            <translation>显示亮度、调暗或调亮</translation>
        </message>
        <message>
            <source>N% makes the picture darker by so much than it is by itself. +N% and -N% are steps: they
make it lighter and darker than it is now, and print what it is then. =LEVEL% is what
the window shows, from =-100% (black) over =0% to =100% (white).</source>
            <translation>N% 使画面比本来的样子暗这么多。+N% 和 -N% 是步进：使画面比现在更亮或更暗，
并显示结果。=LEVEL% 是窗口中显示的值，从 =-100%（黑）经 =0% 到 =100%（白）。</translation>
        </message>
        <message>
            <source>Show or choose hue and vividness of the color filter</source>
            <translation>显示或选择颜色滤镜的色相和鲜艳度</translation>
        </message>
        <message>
            <source>HUE is in degrees: 0 red, 25 orange, 120 green, 240 blue. +N and -N go so far from
what is there.</source>
            <translation>HUE 以度为单位：0 红、25 橙、120 绿、240 蓝。+N 和 -N 从当前值开始增减。</translation>
        </message>
        <message>
            <source>Show or choose a color temperature</source>
            <translation>显示或选择色温</translation>
        </message>
        <message>
            <source>From 1000 (candle) over 6500 (neutral) to 25000 (blue sky), as hue and vividness of the
color filter, which is chosen. +N and -N go so far from the one in force.</source>
            <translation>从 1000（烛光）经 6500（中性）到 25000（蓝天），以颜色滤镜的色相和鲜艳度表示，
并选中该滤镜。+N 和 -N 从当前值开始增减。</translation>
        </message>
        <message>
            <source>Show, choose or keep a combination of effects</source>
            <translation>显示、选择或保存效果组合</translation>
        </message>
        <message>
            <source>list [--json]      all of them, those that come with Nocturo and your own
next, previous     the one after or before the one in force
back               what the last look replaced
save NAME          keep the effects as a look of your own
rename NAME NEW, delete NAME, move NAME PLACE</source>
            <translation>list [--json]      全部，包括随 Nocturo 提供的和自有的
next, previous     当前外观方案的下一个或上一个
back               上一个外观方案所取代的状态
save NAME          将当前效果保存为自有外观方案
rename NAME NEW, delete NAME, move NAME PLACE</translation>
        </message>
        <message>
            <source>Show a setting</source>
            <translation>显示一项设置</translation>
        </message>
        <message>
            <source>nocturoctl status --all lists the keys.</source>
            <translation>nocturoctl status --all 会列出各个键。</translation>
        </message>
        <message>
            <source>Change a setting</source>
            <translation>更改一项设置</translation>
        </message>
        <message>
            <source>VALUE is true or false, a number, or a list with commas, as the setting takes it.
For example: nocturoctl set NDDimEffectLevel -30%. Numbers beyond the range and displays
that are not there are refused without --force.</source>
            <translation>VALUE 视设置而定，为 true 或 false、数字，或以逗号分隔的列表。
例如：nocturoctl set NDDimEffectLevel -30%。超出范围的数字和不存在的屏幕
不加 --force 会被拒绝。</translation>
        </message>
        <message>
            <source>Change a number by so much</source>
            <translation>将数值增减指定的量</translation>
        </message>
        <message>
            <source>As far as its range goes. For example: nocturoctl step NDDimEffectLevel -5%</source>
            <translation>以其范围为限。例如：nocturoctl step NDDimEffectLevel -5%</translation>
        </message>
        <message>
            <source>Give a setting its default value again</source>
            <translation>将一项设置恢复为默认值</translation>
        </message>
        <message>
            <source>List or choose the affected displays</source>
            <translation>列出或选择受影响的屏幕</translation>
        </message>
        <message>
            <source>DISPLAY is its number in the list, its name or its identifier. only chooses these
alone; toggle puts each into the set of affected displays or takes it out. An
empty set means all displays, which is also what all chooses. look gives a display a
look of its own; - takes it away.</source>
            <translation>DISPLAY 是列表中的编号、名称或标识符。only 只选择这些；toggle 将每个屏幕
加入受影响的屏幕集合或从中移除。空集合表示所有屏幕，这也是 all 的选择。
look 为屏幕指定自己的外观方案，- 将其取消。</translation>
        </message>
        <message>
            <source>Show or choose the global hot key</source>
            <translation>显示或选择全局快捷键</translation>
        </message>
        <message>
            <source>KEYS is one key and any of ctrl, alt (or option), shift and super (or command),
such as 'ctrl+super+F5' or 'alt+shift+k'. The hot key toggles the effect while it
is enabled. Keys are what they type, and f1 to f20, left, right, up, down, home,
end, pageup, pagedown, insert, delete, backspace, tab, space, return, escape,
menu, volumeup, volumedown, mute, eisu, kana, keypad0 to keypad9, keypadplus,
keypadminus, keypadmultiply, keypaddivide, keypaddecimal, keypadcomma,
keypadequals, keypadenter and keypadclear.</source>
            <translation>KEYS 是一个按键加任意的 ctrl、alt（或 option）、shift 和 super（或 command），例如
'ctrl+super+F5' 或 'alt+shift+k'。快捷键启用时会切换效果。按键为其所输入的字符，或
f1 到 f20, left, right, up, down, home,
end, pageup, pagedown, insert, delete, backspace, tab, space, return, escape,
menu, volumeup, volumedown, mute, eisu, kana, keypad0 到 keypad9, keypadplus,
keypadminus, keypadmultiply, keypaddivide, keypaddecimal, keypadcomma,
keypadequals, keypadenter 和 keypadclear。</translation>
        </message>
        <message>
            <source>Take the effects from a document</source>
            <translation>从文档中读取效果</translation>
        </message>
        <message>
            <source>Save the effects as a document</source>
            <translation>将效果保存为文档</translation>
        </message>
        <message>
            <source>Draw what the effects do</source>
            <translation>绘制效果的作用</translation>
        </message>
        <message>
            <source>The curves of a display, of the main one unless told otherwise, and a scene seen
through them, as a PNG picture. N is its number, name or identifier.</source>
            <translation>以 PNG 图片绘制一个屏幕（默认为主屏幕）的曲线，以及透过曲线看到的场景。
N 是屏幕的编号、名称或标识符。</translation>
        </message>
        <message>
            <source>Show the preference window</source>
            <translation>显示首选项窗口</translation>
        </message>
        <message>
            <source>Show the about box</source>
            <translation>显示“关于”窗口</translation>
        </message>
        <message>
            <source>Print every change as it happens</source>
            <translation>实时输出每次更改</translation>
        </message>
        <message>
            <source>One JSON object a line: first the whole state, then what changed. Ends when Nocturo
does.</source>
            <translation>每行一个 JSON 对象：先是整个状态，然后是变化。随 Nocturo 结束。</translation>
        </message>
        <message>
            <source>Give every display its own colors back</source>
            <translation>恢复每个屏幕原本的颜色</translation>
        </message>
        <message>
            <source>Whether Nocturo runs, answers or was killed, and without a session bus as well. Where
nothing is known of a display's own colors it gets plain ones.</source>
            <translation>无论 Nocturo 正在运行、没有响应还是已被杀死，也无需会话总线。
若不知道某屏幕原本的颜色，则使用中性的颜色。</translation>
        </message>
        <message>
            <source>Give the displays back and end Nocturo</source>
            <translation>恢复屏幕并退出 Nocturo</translation>
        </message>
        <message>
            <source>%@  (the color filter is not chosen)</source>
            <translation>%@  （未选中颜色滤镜）</translation>
        </message>
        <message>
            <source>"%1$@" takes a number from %2$@ to %3$@.</source>
            <translation>“%1$@”只接受 %2$@ 到 %3$@ 之间的数。</translation>
        </message>
        <message>
            <source>%@  (dim is not chosen)</source>
            <translation>%@  （未选中调暗）</translation>
        </message>
        <message>
            <source>Nocturo has ended.</source>
            <translation>Nocturo 已退出。</translation>
        </message>
        <message>
            <source>nocturoctl %@ --help tells more.</source>
            <translation>nocturoctl %@ --help 提供更多说明。</translation>
        </message>
        <message>
            <source>Usage: %@</source>
            <translation>用法：%@</translation>
        </message>
        <message>
            <source>Drives the Nocturo that runs in this session.</source>
            <translation>控制在此会话中运行的 Nocturo。</translation>
        </message>
        <message>
            <source>With --keep, colors that leave every screen hard to read stay. Without it they go back
after ten seconds, unless somebody keeps them.</source>
            <translation>使用 --keep 时，即使所有屏幕都难以辨认，颜色也会保留。否则十秒后自动恢复，
除非有人保留它们。</translation>
        </message>
        <message>
            <source>Exit status: 0 done, 1 failed, 2 not understood, 3 Nocturo is not running.</source>
            <translation>退出状态：0 完成，1 失败，2 无法理解，3 Nocturo 未在运行。</translation>
        </message>
        <message>
            <source>Say what to do; nocturoctl --help lists the verbs.</source>
            <translation>请指明要做什么；nocturoctl --help 会列出各个动词。</translation>
        </message>
        <message>
            <source>There is no verb "%@"; nocturoctl --help lists them.</source>
            <translation>没有动词“%@”；nocturoctl --help 会列出全部动词。</translation>
        </message>
        <message>
            <source>The answer cannot be written: %@.</source>
            <translation>无法写出回答：%@。</translation>
        </message>
        <message>
            <source>"%1$@" cannot be started: %2$@.</source>
            <translation>无法启动“%1$@”：%2$@。</translation>
        </message>
        <message>
            <source>no ramp, or another program has it</source>
            <translation>没有色阶，或被其他程序占用</translation>
        </message>
        <message>
            <source>cannot be given a color profile</source>
            <translation>无法设置颜色配置文件</translation>
        </message>
        <message>
            <source>in HDR mode</source>
            <translation>处于 HDR 模式</translation>
        </message>
        <message>
            <source>refused by the desktop</source>
            <translation>被桌面拒绝</translation>
        </message>
        <message>
            <source>yes</source>
            <translation>是</translation>
        </message>
        <message>
            <source>no</source>
            <translation>否</translation>
        </message>
        <message>
            <source>(none)</source>
            <translation>（无）</translation>
        </message>
        <message>
            <source>%@ (not enabled)</source>
            <translation>%@（未启用）</translation>
        </message>
        <message>
            <source>%@ (not in force)</source>
            <translation>%@（未生效）</translation>
        </message>
        <message>
            <source>Another program</source>
            <translation>其他程序</translation>
        </message>
        <message>
            <source>%@ changes the colors too: found once since Nocturo was started.</source>
            <translation>%@也在更改颜色：自 Nocturo 启动以来发现一次。</translation>
        </message>
        <message>
            <source>%@ changes the colors too: found %d times since Nocturo was started.</source>
            <translation>%@也在更改颜色：自 Nocturo 启动以来发现 %d 次。</translation>
        </message>
        <message>
            <source>look</source>
            <translation>外观方案</translation>
        </message>
        <message>
            <source>dim level</source>
            <translation>调暗程度</translation>
        </message>
        <message>
            <source>color filter hue</source>
            <translation>颜色滤镜的色相</translation>
        </message>
        <message>
            <source>color filter vividness</source>
            <translation>颜色滤镜的鲜艳度</translation>
        </message>
        <message>
            <source>hot key</source>
            <translation>快捷键</translation>
        </message>
        <message>
            <source>display services</source>
            <translation>屏幕来源</translation>
        </message>
        <message>
            <source>Displays</source>
            <translation>屏幕</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>设置</translation>
        </message>
        <message>
            <source>no.</source>
            <translation>编号</translation>
        </message>
        <message>
            <source>name</source>
            <translation>名称</translation>
        </message>
        <message>
            <source>identifier</source>
            <translation>标识符</translation>
        </message>
        <message>
            <source>ramp</source>
            <translation>色阶</translation>
        </message>
        <message>
            <source>applied</source>
            <translation>已应用</translation>
        </message>
        <message>
            <source>monitor</source>
            <translation>显示器</translation>
        </message>
        <message>
            <source>none</source>
            <translation>无</translation>
        </message>
        <message>
            <source>main</source>
            <translation>主屏幕</translation>
        </message>
        <message>
            <source>not connected</source>
            <translation>未连接</translation>
        </message>
        <message>
            <source>own</source>
            <translation>自有</translation>
        </message>
        <message>
            <source>Nocturo has switched its effect off and given the displays back.</source>
            <translation>Nocturo 已停用效果并恢复了屏幕。</translation>
        </message>
        <message>
            <source>The displays have been given back, but a Nocturo that does not answer still runs and may change them again.</source>
            <translation>屏幕已恢复，但仍有一个没有响应的 Nocturo 在运行，可能会再次更改它们。</translation>
        </message>
        <message>
            <source>The displays have their own colors back, as they were before Nocturo changed them.</source>
            <translation>屏幕已恢复为 Nocturo 更改之前其原本的颜色。</translation>
        </message>
        <message>
            <source>Nocturo has left no display changed, so nothing was done.</source>
            <translation>Nocturo 没有留下任何被更改的屏幕，因此未执行任何操作。</translation>
        </message>
        <message>
            <source>The displays have plain colors now, or those of their color profiles.</source>
            <translation>屏幕现在使用中性的颜色，或其颜色配置文件的颜色。</translation>
        </message>
        <message>
            <source>The desktop does not take the color profiles of the displays back; choose them in its settings.</source>
            <translation>桌面不接受恢复显示器的颜色配置文件；请在桌面的设置中选择它们。</translation>
        </message>
        <message>
            <source>%@ does not tell Nocturo of its displays.</source>
            <translation>%@ 没有向 Nocturo 提供其屏幕的信息。</translation>
        </message>
        <message>
            <source>There is no X server whose displays could be given back, because DISPLAY is not set.</source>
            <translation>未设置 DISPLAY，因此没有可恢复屏幕的 X 服务器。</translation>
        </message>
        <message>
            <source>The X server %@ does not answer.</source>
            <translation>X 服务器 %@ 没有响应。</translation>
        </message>
        <message>
            <source>The compositor %@ does not answer.</source>
            <translation>合成器 %@ 没有响应。</translation>
        </message>
        <message>
            <source>%@ is in front</source>
            <translation>%@ 在最前面</translation>
        </message>
        <message>
            <source>a game is running</source>
            <translation>有游戏正在运行</translation>
        </message>
        <message>
            <source>a window fills %@</source>
            <translation>有窗口占满 %@</translation>
        </message>
        <message>
            <source>The rules are not in use; nocturoctl rules on changes that.</source>
            <translation>未使用规则；nocturoctl rules on 可启用。</translation>
        </message>
        <message>
            <source>The schedule is not in use; nocturoctl schedule on changes that.</source>
            <translation>计划未启用；nocturoctl schedule on 可启用。</translation>
        </message>
        <message>
            <source>Nothing is scheduled.</source>
            <translation>没有计划。</translation>
        </message>
        <message>
            <source>There is no display "%@"; nocturoctl screens lists their numbers, names and identifiers.</source>
            <translation>没有屏幕“%@”；nocturoctl screens 会列出它们的编号、名称和标识符。</translation>
        </message>
        <message>
            <source>There is no effect "%@"; the effects are %@.</source>
            <translation>没有效果“%@”；可用的效果为 %@。</translation>
        </message>
        <message>
            <source>About %@</source>
            <translation>关于 %@</translation>
        </message>
        <message>
            <source>Version %@</source>
            <translation>版本 %@</translation>
        </message>
        <message>
            <source>Credits.html</source>
            <translation>Credits_zh_CN.html</translation>
        </message>
        <message>
            <source>Nocturo User Guide</source>
            <translation>Nocturo 用户指南</translation>
        </message>
        <message>
            <source>%@ is held by another program. Choose another hot key.</source>
            <translation>%@ 已被其他程序占用，请选择别的快捷键。</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>复制</translation>
        </message>
        <message>
            <source>Change...</source>
            <translation>更改...</translation>
        </message>
        <message>
            <source>Ask</source>
            <translation>询问</translation>
        </message>
        <message>
            <source>Hot key</source>
            <translation>快捷键</translation>
        </message>
        <message>
            <source>Press the new hot key, with Ctrl, Alt or Super, or Escape to leave it as it was.</source>
            <translation>请按下新快捷键（须含 Ctrl、Alt 或 Super），或按 Esc 保持原样。</translation>
        </message>
        <message>
            <source>Click or press Space to record another shortcut.</source>
            <translation>单击或按空格键可录制其他快捷键。</translation>
        </message>
        <message>
            <source>With Ctrl, Alt or Super</source>
            <translation>须含 Ctrl、Alt 或 Super</translation>
        </message>
        <message>
            <source>Press keys, Esc cancels</source>
            <translation>请按键，Esc 取消</translation>
        </message>
        <message>
            <source>Save as a look...</source>
            <translation>存为外观方案...</translation>
        </message>
        <message>
            <source>Keeps the effects under a name of your own</source>
            <translation>以您起的名称保留这些效果</translation>
        </message>
        <message>
            <source>Change</source>
            <translation>更改</translation>
        </message>
        <message>
            <source>Renames, moves or deletes the look that is marked</source>
            <translation>重命名、移动或删除选中的外观方案</translation>
        </message>
        <message>
            <source>A click puts a look on the screens, another one takes it away</source>
            <translation>单击将外观方案用于屏幕，再次单击则取消</translation>
        </message>
        <message>
            <source>Rename...</source>
            <translation>重命名...</translation>
        </message>
        <message>
            <source>Move to the front</source>
            <translation>前移</translation>
        </message>
        <message>
            <source>Move to the back</source>
            <translation>后移</translation>
        </message>
        <message>
            <source>Delete...</source>
            <translation>删除...</translation>
        </message>
        <message>
            <source>Save as a look</source>
            <translation>存为外观方案</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Rename Look</source>
            <translation>重命名外观方案</translation>
        </message>
        <message>
            <source>Rename</source>
            <translation>重命名</translation>
        </message>
        <message>
            <source>Delete the look "%@"?</source>
            <translation>删除外观方案“%@”？</translation>
        </message>
        <message>
            <source>It will be missed by: %@.</source>
            <translation>以下项目正在使用它：%@。</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>删除</translation>
        </message>
        <message>
            <source>Name:</source>
            <translation>名称：</translation>
        </message>
        <message>
            <source>There is a look "%@" already.</source>
            <translation>已有外观方案“%@”。</translation>
        </message>
        <message>
            <source>Replace</source>
            <translation>替换</translation>
        </message>
        <message>
            <source>This desktop shows no tray at the moment; Nocturo can be reached through the applications menu.</source>
            <translation>此桌面当前没有系统托盘；可以通过应用程序菜单使用 Nocturo。</translation>
        </message>
        <message>
            <source>“%@” is not an effect document.</source>
            <translation>“%@”不是效果文档。</translation>
        </message>
        <message>
            <source>Opening failed</source>
            <translation>打开失败</translation>
        </message>
        <message>
            <source>&amp;Effect</source>
            <translation>效果(&amp;E)</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>文件(&amp;F)</translation>
        </message>
        <message>
            <source>&amp;Open...</source>
            <translation>打开(&amp;O)...</translation>
        </message>
        <message>
            <source>Open &amp;Recent</source>
            <translation>打开最近的文件(&amp;R)</translation>
        </message>
        <message>
            <source>&amp;Clear Menu</source>
            <translation>清空列表(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Save...</source>
            <translation>保存(&amp;S)...</translation>
        </message>
        <message>
            <source>&amp;Preferences...</source>
            <translation>首选项(&amp;P)...</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>关闭(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Quit Nocturo</source>
            <translation>退出 Nocturo(&amp;Q)</translation>
        </message>
        <message>
            <source>&amp;Help</source>
            <translation>帮助(&amp;H)</translation>
        </message>
        <message>
            <source>User &amp;Guide</source>
            <translation>用户指南(&amp;G)</translation>
        </message>
        <message>
            <source>&amp;About Nocturo</source>
            <translation>关于 Nocturo(&amp;A)</translation>
        </message>
        <message>
            <source>red</source>
            <translation>红色</translation>
        </message>
        <message>
            <source>orange</source>
            <translation>橙色</translation>
        </message>
        <message>
            <source>yellow</source>
            <translation>黄色</translation>
        </message>
        <message>
            <source>lime</source>
            <translation>黄绿色</translation>
        </message>
        <message>
            <source>green</source>
            <translation>绿色</translation>
        </message>
        <message>
            <source>sea green</source>
            <translation>海绿色</translation>
        </message>
        <message>
            <source>cyan</source>
            <translation>青色</translation>
        </message>
        <message>
            <source>azure</source>
            <translation>天蓝色</translation>
        </message>
        <message>
            <source>blue</source>
            <translation>蓝色</translation>
        </message>
        <message>
            <source>violet</source>
            <translation>紫色</translation>
        </message>
        <message>
            <source>magenta</source>
            <translation>品红色</translation>
        </message>
        <message>
            <source>pink</source>
            <translation>粉红色</translation>
        </message>
        <message>
            <source>candle</source>
            <translation>烛光</translation>
        </message>
        <message>
            <source>tungsten</source>
            <translation>钨丝灯</translation>
        </message>
        <message>
            <source>sunset</source>
            <translation>日落</translation>
        </message>
        <message>
            <source>daylight</source>
            <translation>日光</translation>
        </message>
        <message>
            <source>The screens are hard to read now. They go back by themselves in %d s.</source>
            <translation>屏幕现在难以看清，%d 秒后将自动还原。</translation>
        </message>
        <message>
            <source>Keep these colors?</source>
            <translation>要保留这些颜色吗？</translation>
        </message>
        <message>
            <source>&amp;Keep</source>
            <translation>保留(&amp;K)</translation>
        </message>
        <message>
            <source>&amp;Go back</source>
            <translation>还原(&amp;G)</translation>
        </message>
        <message>
            <source>Close anyway</source>
            <translation>仍然关闭</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>确定</translation>
        </message>
        <message>
            <source>Nocturo effects</source>
            <translation>Nocturo 效果</translation>
        </message>
        <message>
            <source>Save Effect</source>
            <translation>保存效果</translation>
        </message>
        <message>
            <source>&amp;Hide extension</source>
            <translation>隐藏扩展名(&amp;X)</translation>
        </message>
        <message>
            <source>Saving failed</source>
            <translation>保存失败</translation>
        </message>
        <message>
            <source>Could not save settings at this location.</source>
            <translation>无法在此位置保存设置。</translation>
        </message>
        <message>
            <source>Open Effect</source>
            <translation>打开效果</translation>
        </message>
        <message>
            <source>As all screens</source>
            <translation>与所有屏幕相同</translation>
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
            <translation>立即</translation>
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
            <translation>输入</translation>
        </message>
        <message>
            <source>Output</source>
            <translation>输出</translation>
        </message>
        <message>
            <source>The colors of this screen cannot be changed.</source>
            <translation>无法更改此屏幕的颜色。</translation>
        </message>
        <message>
            <source>Before</source>
            <translation>应用前</translation>
        </message>
        <message>
            <source>With effect</source>
            <translation>应用后</translation>
        </message>
        <message>
            <source>Clipped</source>
            <translation>截断</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>预览</translation>
        </message>
        <message>
            <source>brightness from %@ to %@</source>
            <translation>亮度从 %@ 到 %@</translation>
        </message>
        <message>
            <source>%@ strongest</source>
            <translation>%@最强</translation>
        </message>
        <message>
            <source>%@ and %@ strongest</source>
            <translation>%@和%@最强</translation>
        </message>
        <message>
            <source>inverted</source>
            <translation>已反转</translation>
        </message>
        <message>
            <source>bright tones clipped</source>
            <translation>亮部被截断</translation>
        </message>
        <message>
            <source>dark tones clipped</source>
            <translation>暗部被截断</translation>
        </message>
        <message>
            <source>almost nothing can be told apart</source>
            <translation>几乎无法分辨任何内容</translation>
        </message>
        <message>
            <source>, </source>
            <translation>，</translation>
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
            <translation>根据前台内容选择外观方案(&amp;C)</translation>
        </message>
        <message>
            <source>Rules</source>
            <translation>规则</translation>
        </message>
        <message>
            <source>Of the rules that hold for a screen the first one counts.</source>
            <translation>适用于某个屏幕的规则中，以第一条为准。</translation>
        </message>
        <message>
            <source>As its windows are called</source>
            <translation>其窗口的名称</translation>
        </message>
        <message>
            <source>P&amp;ick a window</source>
            <translation>选取窗口(&amp;I)</translation>
        </message>
        <message>
            <source>The next window that comes to the front tells its program</source>
            <translation>下一个来到前台的窗口会给出其程序</translation>
        </message>
        <message>
            <source>&amp;When:</source>
            <translation>何时(&amp;W)：</translation>
        </message>
        <message>
            <source>&amp;Program:</source>
            <translation>程序(&amp;P)：</translation>
        </message>
        <message>
            <source>&amp;Look:</source>
            <translation>外观方案(&amp;L)：</translation>
        </message>
        <message>
            <source>&amp;Add</source>
            <translation>添加(&amp;A)</translation>
        </message>
        <message>
            <source>&amp;Remove</source>
            <translation>移除(&amp;R)</translation>
        </message>
        <message>
            <source>Move the rule up</source>
            <translation>上移规则</translation>
        </message>
        <message>
            <source>Move the rule down</source>
            <translation>下移规则</translation>
        </message>
        <message>
            <source>A window fills a screen</source>
            <translation>窗口占满一个屏幕</translation>
        </message>
        <message>
            <source>A program is in front</source>
            <translation>某程序在前台</translation>
        </message>
        <message>
            <source>A game is running</source>
            <translation>游戏正在运行</translation>
        </message>
        <message>
            <source>No rule holds now.</source>
            <translation>目前没有规则生效。</translation>
        </message>
        <message>
            <source>Now: %@</source>
            <translation>现在：%@</translation>
        </message>
        <message>
            <source>Now click a window of the program.</source>
            <translation>现在请点按该程序的窗口。</translation>
        </message>
        <message>
            <source> min</source>
            <translation> 分钟</translation>
        </message>
        <message>
            <source>&amp;Choose looks by the clock and the sun</source>
            <translation>按时间和太阳选择外观方案(&amp;C)</translation>
        </message>
        <message>
            <source>Pa&amp;use</source>
            <translation>暂停(&amp;U)</translation>
        </message>
        <message>
            <source>A pause gives the screens their own colors for a while.</source>
            <translation>暂停会让屏幕暂时恢复自己的颜色。</translation>
        </message>
        <message>
            <source>Resu&amp;me</source>
            <translation>继续(&amp;M)</translation>
        </message>
        <message>
            <source>Latitude and longitude, such as 52.5 13.4; by the time zone where empty</source>
            <translation>纬度和经度，例如 52.5 13.4；留空则按时区</translation>
        </message>
        <message>
            <source>How long the colors take to change when a point comes</source>
            <translation>到达计划点时颜色变化所需的时间</translation>
        </message>
        <message>
            <source>&amp;Place of the sun:</source>
            <translation>太阳的地点(&amp;P)：</translation>
        </message>
        <message>
            <source>Change o&amp;ver:</source>
            <translation>过渡(&amp;V)：</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>计划</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>时间</translation>
        </message>
        <message>
            <source>Dawn</source>
            <translation>黎明</translation>
        </message>
        <message>
            <source>Sunrise</source>
            <translation>日出</translation>
        </message>
        <message>
            <source>Sunset</source>
            <translation>日落</translation>
        </message>
        <message>
            <source>Dusk</source>
            <translation>黄昏</translation>
        </message>
        <message>
            <source>Minutes before or after the sun</source>
            <translation>太阳之前或之后的分钟数</translation>
        </message>
        <message>
            <source>Next: %1$@ at %2$@</source>
            <translation>接下来：%2$@ %1$@</translation>
        </message>
        <message>
            <source>Not in use.</source>
            <translation>未启用。</translation>
        </message>
        <message>
            <source>Paused until %1$@, %2$@ h left</source>
            <translation>已暂停至 %1$@，还剩 %2$@</translation>
        </message>
        <message>
            <source>To see what the effects do, start it with --display-services=simulated.</source>
            <translation>要查看效果的作用，请使用 --display-services=simulated 启动。</translation>
        </message>
        <message>
            <source>%@ offers Nocturo no way to change the colors of displays under Wayland.</source>
            <translation>%@ 在 Wayland 下没有为 Nocturo 提供更改显示器颜色的途径。</translation>
        </message>
        <message>
            <source>This desktop</source>
            <translation>此桌面</translation>
        </message>
        <message>
            <source>There is no X server to work with, because DISPLAY is not set.</source>
            <translation>未设置 DISPLAY，因此没有可用的 X 服务器。</translation>
        </message>
        <message>
            <source>Another Nocturo drives the displays of the X server %@.</source>
            <translation>另一个 Nocturo 正在控制 X 服务器 %@ 的屏幕。</translation>
        </message>
        <message>
            <source>Another Nocturo drives the displays of %@.</source>
            <translation>另一个 Nocturo 正在控制 %@ 的屏幕。</translation>
        </message>
        <message>
            <source>Neither GNOME nor Cinnamon is on the session bus.</source>
            <translation>会话总线上既没有 GNOME 也没有 Cinnamon。</translation>
        </message>
        <message>
            <source>No Wayland compositor answers.</source>
            <translation>没有 Wayland 合成器应答。</translation>
        </message>
        <message>
            <source>Plasma 5 offers Nocturo no way to change the colors of displays under Wayland; choose its X11 session when logging in, or use Plasma 6.</source>
            <translation>Plasma 5 在 Wayland 下没有为 Nocturo 提供更改显示器颜色的方法；请在登录时选择其 X11 会话，或使用 Plasma 6。</translation>
        </message>
        <message>
            <source>Displays are simulated; their pictures are in %@.</source>
            <translation>屏幕是模拟的；其图片位于 %@。</translation>
        </message>
        <message>
            <source>The X server %@ is only a guest of a Wayland session and cannot change its colors; displays under Wayland come with a later version.</source>
            <translation>X 服务器 %@ 只是 Wayland 会话中的客体，无法更改其颜色；后续版本将支持 Wayland 下的屏幕。</translation>
        </message>
        <message>
            <source>The X server %@ has no RandR 1.3 or later.</source>
            <translation>X 服务器 %@ 没有 RandR 1.3 或更高版本。</translation>
        </message>
        <message>
            <source>The X server %@ cannot be reached.</source>
            <translation>无法连接 X 服务器 %@。</translation>
        </message>
        <message>
            <source>There are no looks.</source>
            <translation>没有外观方案。</translation>
        </message>
        <message>
            <source>No look was applied from which one could go back.</source>
            <translation>尚未应用可以返回的外观方案。</translation>
        </message>
        <message>
            <source>Night reading</source>
            <translation>夜间阅读</translation>
        </message>
        <message>
            <source>Warm evening</source>
            <translation>温暖傍晚</translation>
        </message>
        <message>
            <source>Red night vision</source>
            <translation>红色夜视</translation>
        </message>
        <message>
            <source>Just dimmer</source>
            <translation>仅调暗</translation>
        </message>
        <message>
            <source>Paper tint</source>
            <translation>纸张色调</translation>
        </message>
        <message>
            <source>"%@" cannot be the name of a look.</source>
            <translation>“%@”不能用作外观方案的名称。</translation>
        </message>
        <message>
            <source>The look "%@" comes with Nocturo and stays as it is.</source>
            <translation>外观方案“%@”随 Nocturo 提供，不能更改。</translation>
        </message>
        <message>
            <source>This desktop takes hot keys from its own settings. Add a shortcut for this command there:</source>
            <translation>此桌面使用自己设置中的快捷键。请在那里为以下命令添加快捷键：</translation>
        </message>
        <message>
            <source>This desktop takes hot keys from its own configuration. Put this line there:</source>
            <translation>此桌面使用自己配置文件中的快捷键。请将以下一行写入其中：</translation>
        </message>
        <message>
            <source>The desktop is asked whether Nocturo may have it.</source>
            <translation>正在询问桌面 Nocturo 是否可以使用它。</translation>
        </message>
        <message>
            <source>This desktop has not been asked for it yet.</source>
            <translation>尚未向此桌面请求使用它。</translation>
        </message>
        <message>
            <source>The desktop has refused it.</source>
            <translation>桌面已拒绝。</translation>
        </message>
        <message>
            <source>The desktop has it as %@; its own settings change that.</source>
            <translation>桌面将其登记为 %@；可在桌面设置中更改。</translation>
        </message>
        <message>
            <source>A hot key is one key and any of ctrl, alt, shift and super, joined by +, such as ctrl+super+F5; nocturoctl hotkey --help lists the keys.</source>
            <translation>快捷键是一个按键加任意的 ctrl、alt、shift 和 super，以 + 连接，例如 ctrl+super+F5；nocturoctl hotkey --help 列出按键。</translation>
        </message>
        <message>
            <source>No hot key was given.</source>
            <translation>没有给出快捷键。</translation>
        </message>
        <message>
            <source>"%@" has a plus sign with nothing before or after it.</source>
            <translation>“%@”中有一个加号，其前面或后面没有内容。</translation>
        </message>
        <message>
            <source>"%@" and "%@" are both keys, but a hot key has only one.</source>
            <translation>“%@”和“%@”都是按键，但快捷键只能有一个按键。</translation>
        </message>
        <message>
            <source>"%@" has no key besides its modifiers.</source>
            <translation>“%@”除了修饰键之外没有按键。</translation>
        </message>
        <message>
            <source>"%@" is not a key's name, and no key of the current keyboard layout types it.</source>
            <translation>“%@”不是按键名称，当前键盘布局中也没有输入它的按键。</translation>
        </message>
        <message>
            <source>"%@" is not a key's name, and the keyboard layout that could tell which key types it cannot be read.</source>
            <translation>“%@”不是按键名称，而可以说明由哪个按键输入它的键盘布局无法读取。</translation>
        </message>
        <message>
            <source>"%@" needs a modifier: only function, arrow and navigation keys can be hot keys alone.</source>
            <translation>“%@”需要修饰键：只有功能键、方向键和导航键可以单独作为快捷键。</translation>
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
            <translation>回车</translation>
        </message>
        <message>
            <source>Tab</source>
            <translation>Tab</translation>
        </message>
        <message>
            <source>Space</source>
            <translation>空格</translation>
        </message>
        <message>
            <source>Backspace</source>
            <translation>退格</translation>
        </message>
        <message>
            <source>Esc</source>
            <translation>Esc</translation>
        </message>
        <message>
            <source>Volume Up</source>
            <translation>调高音量</translation>
        </message>
        <message>
            <source>Volume Down</source>
            <translation>调低音量</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>静音</translation>
        </message>
        <message>
            <source>Menu</source>
            <translation>菜单</translation>
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
            <translation>启用或停用效果</translation>
        </message>
        <message>
            <source>Windows come with the package nocturo-desktop, which is not installed.</source>
            <translation>窗口由软件包 nocturo-desktop 提供，但它没有安装。</translation>
        </message>
        <message>
            <source>Windows cannot be shown: %@.</source>
            <translation>无法显示窗口：%@。</translation>
        </message>
        <message>
            <source>Windows cannot be shown before Nocturo is started again, because another version was installed meanwhile.</source>
            <translation>由于期间安装了另一个版本，重新启动 Nocturo 之前无法显示窗口。</translation>
        </message>
        <message>
            <source>The display server has gone, so Nocturo ends.</source>
            <translation>显示服务器已消失，因此 Nocturo 将退出。</translation>
        </message>
        <message>
            <source>Nocturo is already running.</source>
            <translation>Nocturo 已在运行。</translation>
        </message>
        <message>
            <source>The runtime directory cannot be used; set XDG_RUNTIME_DIR to one of yours.</source>
            <translation>运行时目录无法使用；请将 XDG_RUNTIME_DIR 设为您自己的目录。</translation>
        </message>
        <message>
            <source>Nocturo starts switched off, because nocturoctl restore gave the displays back.</source>
            <translation>由于 nocturoctl restore 已还原屏幕，Nocturo 以关闭状态启动。</translation>
        </message>
        <message>
            <source>Nocturo starts switched off.</source>
            <translation>Nocturo 以关闭状态启动。</translation>
        </message>
        <message>
            <source>Changes how whole screens look: inverted, overexposed, dimmed or lightened, in
the HDTV range or through a color filter. Runs until it is told to quit, and
gives every display back then. Drive it with nocturoctl.</source>
            <translation>改变整个屏幕的外观：反转、过曝、调暗或调亮、HDTV 范围，或颜色滤镜。
一直运行到被要求退出为止，届时恢复每个屏幕。可用 nocturoctl 控制。</translation>
        </message>
        <message>
            <source>Options:</source>
            <translation>选项：</translation>
        </message>
        <message>
            <source>where the displays come from:</source>
            <translation>屏幕的来源：</translation>
        </message>
        <message>
            <source>what this session offers (default)</source>
            <translation>此会话所提供的（默认）</translation>
        </message>
        <message>
            <source>an X server</source>
            <translation>X 服务器</translation>
        </message>
        <message>
            <source>a Wayland compositor like sway</source>
            <translation>sway 之类的 Wayland 合成器</translation>
        </message>
        <message>
            <source>GNOME or Cinnamon</source>
            <translation>GNOME 或 Cinnamon</translation>
        </message>
        <message>
            <source>KDE Plasma 6</source>
            <translation>KDE Plasma 6</translation>
        </message>
        <message>
            <source>N displays, 1 to 16 (default 2),</source>
            <translation>N 个屏幕，1 到 16（默认为 2），</translation>
        </message>
        <message>
            <source>in memory, drawn into pictures</source>
            <translation>位于内存中，绘制到图片里</translation>
        </message>
        <message>
            <source>start with the effect off</source>
            <translation>启动时不启用效果</translation>
        </message>
        <message>
            <source>start with the session, asking nothing</source>
            <translation>随会话启动，不提问</translation>
        </message>
        <message>
            <source>show this text</source>
            <translation>显示此文本</translation>
        </message>
        <message>
            <source>show the version</source>
            <translation>显示版本</translation>
        </message>
        <message>
            <source>A FILE is an effect document (.nocturo) to open, by the Nocturo that runs if
there is one. Starting Nocturo a second time without one toggles the effect.</source>
            <translation>FILE 是要打开的效果文档（.nocturo）；如果已有 Nocturo 在运行，则由它打开。
不带文档再次启动 Nocturo 会切换效果。</translation>
        </message>
        <message>
            <source>There is no option "%@"; see nocturo --help.</source>
            <translation>没有选项“%@”；请参阅 nocturo --help。</translation>
        </message>
        <message>
            <source>--display-services takes %@ or simulated:N with N from 1 to 16.</source>
            <translation>--display-services 可取 %@ 或 simulated:N，其中 N 为 1 到 16。</translation>
        </message>
        <message>
            <source>Without a session bus the Nocturo that runs cannot be given a document.</source>
            <translation>没有会话总线，无法将文档交给正在运行的 Nocturo。</translation>
        </message>
        <message>
            <source>"%@" is no identifier of a display with a look, such as 71524911 Night reading.</source>
            <translation>“%@”不是屏幕标识符加外观方案，例如 71524911 Night reading。</translation>
        </message>
        <message>
            <source>"%1$@" takes a list of %2$@ looks at most.</source>
            <translation>“%1$@”最多接受 %2$@ 个外观方案的列表。</translation>
        </message>
        <message>
            <source>"%@" is no rule, such as fullscreen off or program mpv Warm evening.</source>
            <translation>“%@”不是规则，例如 fullscreen off 或 program mpv Warm evening。</translation>
        </message>
        <message>
            <source>"%@" is no point of a schedule, such as 07:00 off or sunset-00:30 Warm evening.</source>
            <translation>“%@”不是 07:00 off 或 sunset-00:30 Warm evening 这样的计划时间点。</translation>
        </message>
        <message>
            <source>It holds until Nocturo quits; the settings cannot be saved to %1$@ (%2$@).</source>
            <translation>在 Nocturo 退出前有效；设置无法保存到 %1$@（%2$@）。</translation>
        </message>
        <message>
            <source>the file that is there cannot be read</source>
            <translation>该处的文件无法读取</translation>
        </message>
        <message>
            <source>the selected effects</source>
            <translation>所选的效果</translation>
        </message>
        <message>
            <source>switch the effect on at every start</source>
            <translation>每次启动时启用效果</translation>
        </message>
        <message>
            <source>starting Nocturo again toggles the effect</source>
            <translation>再次启动 Nocturo 会切换效果</translation>
        </message>
        <message>
            <source>while on, apply again every 6 seconds</source>
            <translation>启用期间每 6 秒重新应用一次</translation>
        </message>
        <message>
            <source>pause while the screen saver runs</source>
            <translation>屏幕保护程序运行时暂停</translation>
        </message>
        <message>
            <source>toggle with the global hot key</source>
            <translation>用全局快捷键切换</translation>
        </message>
        <message>
            <source>1: run as a tray item</source>
            <translation>1：作为托盘图标运行</translation>
        </message>
        <message>
            <source>virtual key code of the hot key</source>
            <translation>快捷键的虚拟键码</translation>
        </message>
        <message>
            <source>modifier flags of the hot key</source>
            <translation>快捷键的修饰键标志</translation>
        </message>
        <message>
            <source>whether the effect was last switched on</source>
            <translation>效果上次是否处于启用状态</translation>
        </message>
        <message>
            <source>the affected displays; none means all</source>
            <translation>受影响的屏幕；空表示全部</translation>
        </message>
        <message>
            <source>the display last picked; 0 means all</source>
            <translation>最近选择的屏幕；0 表示全部</translation>
        </message>
        <message>
            <source>dim: -1 black, 0 unchanged, 1 white</source>
            <translation>调暗：-1 为黑，0 为不变，1 为白</translation>
        </message>
        <message>
            <source>color filter: hue in degrees</source>
            <translation>颜色滤镜：色相（度）</translation>
        </message>
        <message>
            <source>color filter: strength, 0 to 1</source>
            <translation>颜色滤镜：强度，0 到 1</translation>
        </message>
        <message>
            <source>seconds that a change fades for, 0 to 5</source>
            <translation>渐变所用的秒数，0 到 5</translation>
        </message>
        <message>
            <source>switch and choose looks by the schedule</source>
            <translation>按计划切换并选择外观方案</translation>
        </message>
        <message>
            <source>the schedule: times with looks or off</source>
            <translation>计划：时间与外观方案或 off</translation>
        </message>
        <message>
            <source>where the sun is looked at; empty: by the time zone</source>
            <translation>观察太阳的地点；留空则按时区</translation>
        </message>
        <message>
            <source>minutes that a change by the schedule fades for, 0 to 60</source>
            <translation>计划引起的变化所用的分钟数，0 到 60</translation>
        </message>
        <message>
            <source>switch and choose looks by the rules</source>
            <translation>按规则切换并选择外观方案</translation>
        </message>
        <message>
            <source>the rules: what is in front, with looks or off</source>
            <translation>规则：最前面的内容，对应外观方案或 off</translation>
        </message>
        <message>
            <source>displays by identifier with looks of their own</source>
            <translation>有自己外观方案的屏幕，按标识符</translation>
        </message>
        <message>
            <source>the f.lux warning was answered</source>
            <translation>已回应关于 f.lux 的警告</translation>
        </message>
        <message>
            <source>"%@" takes a list of effects.</source>
            <translation>“%@”的值应为效果列表。</translation>
        </message>
        <message>
            <source>"%@" takes a list of effect names.</source>
            <translation>“%@”的值应为效果名称列表。</translation>
        </message>
        <message>
            <source>"%1$@" takes effects only, and there is no effect "%2$@".</source>
            <translation>“%1$@”只接受效果，而没有名为“%2$@”的效果。</translation>
        </message>
        <message>
            <source>"%@" takes a place such as 52.5 13.4 or 33.9S 151.2E.</source>
            <translation>“%@”接受 52.5 13.4 或 33.9S 151.2E 这样的地点。</translation>
        </message>
        <message>
            <source>"%@" takes true or false.</source>
            <translation>“%@”的值应为 true 或 false。</translation>
        </message>
        <message>
            <source>"%@" takes a whole number.</source>
            <translation>“%@”的值应为整数。</translation>
        </message>
        <message>
            <source>"%@" takes a finite number.</source>
            <translation>“%@”的值应为有限的数。</translation>
        </message>
        <message>
            <source>"%@" takes a list of display identifiers.</source>
            <translation>“%@”的值应为屏幕标识符列表。</translation>
        </message>
    </context>
    <context>
        <name>ZQFluxCheck</name>
        <message>
            <source>%@ is present on this computer.</source>
            <translation>此计算机上装有 %@。</translation>
        </message>
        <message>
            <source>[%1$@ installed, might interfer %2$@.]</source>
            <translation>%2$@ 也会更改屏幕的颜色，因此可能会干扰 %1$@：两个程序可能会互相撤销对方的更改。建议同一时间只使用其中一个。</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>继续</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>退出</translation>
        </message>
    </context>
</TS>
