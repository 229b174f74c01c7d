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
            <source>Effects</source>
            <translation>效果</translation>
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
            <source>H&amp;ue:</source>
            <translation>色相(&amp;U)：</translation>
        </message>
        <message>
            <source>The color that passes the filter</source>
            <translation>滤镜允许通过的颜色</translation>
        </message>
        <message>
            <source>Vivid&amp;ness:</source>
            <translation>鲜艳度(&amp;N)：</translation>
        </message>
        <message>
            <source>How much of the other colors the filter takes away</source>
            <translation>滤镜去除其他颜色的程度</translation>
        </message>
        <message>
            <source>&amp;Dim or lighten</source>
            <translation>调暗或调亮(&amp;D)</translation>
        </message>
        <message>
            <source>Moves every color toward black or toward white</source>
            <translation>使所有颜色趋向黑色或白色</translation>
        </message>
        <message>
            <source>&amp;Level:</source>
            <translation>程度(&amp;L)：</translation>
        </message>
        <message>
            <source>Negative values make the screen darker, positive ones lighter</source>
            <translation>负值使屏幕变暗，正值使屏幕变亮</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>预览</translation>
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
            <source>Screens</source>
            <translation>屏幕</translation>
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
            <source>Hot key</source>
            <translation>快捷键</translation>
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
            <source>Application</source>
            <translation>应用程序</translation>
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
            <source>Op&amp;en...</source>
            <translation>打开(&amp;E)...</translation>
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
            <source>Activate Effect</source>
            <translation>启用效果</translation>
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
            <source>This desktop shows no tray at the moment; Nocturo can be reached through the applications menu.</source>
            <translation>此桌面当前没有系统托盘；可以通过应用程序菜单使用 Nocturo。</translation>
        </message>
        <message>
            <source>Deactivate Effect</source>
            <translation>停用效果</translation>
        </message>
        <message>
            <source>Clear Menu</source>
            <translation>清空列表</translation>
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
            <source>Effect</source>
            <translation>效果</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>帮助</translation>
        </message>
        <message>
            <source>&amp;About Nocturo</source>
            <translation>关于 Nocturo(&amp;A)</translation>
        </message>
        <message>
            <source>Type a shortcut</source>
            <translation>请按快捷键</translation>
        </message>
        <message>
            <source>Hot key</source>
            <translation>快捷键</translation>
        </message>
        <message>
            <source>Press the new shortcut, or Escape to leave it as it was.</source>
            <translation>请按新的快捷键，或按 Esc 保持不变。</translation>
        </message>
        <message>
            <source>Click or press Space to record another shortcut.</source>
            <translation>单击或按空格键可录制其他快捷键。</translation>
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
            <source>%@ %%</source>
            <translation>%@%%</translation>
        </message>
        <message>
            <source>brightness from %@ to %@</source>
            <translation>亮度从 %@ 到 %@</translation>
        </message>
        <message>
            <source>red</source>
            <translation>红色</translation>
        </message>
        <message>
            <source>green</source>
            <translation>绿色</translation>
        </message>
        <message>
            <source>blue</source>
            <translation>蓝色</translation>
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
            <source>The screens are hard to read now. They go back by themselves in %d s.</source>
            <translation>屏幕现在难以看清，%d 秒后将自动还原。</translation>
        </message>
        <message>
            <source> %</source>
            <translation>%</translation>
        </message>
        <message>
            <source>Close anyway</source>
            <translation>仍然关闭</translation>
        </message>
        <message>
            <source>Nocturo effects</source>
            <translation>Nocturo 效果</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>确定</translation>
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
            <source>Opening failed</source>
            <translation>打开失败</translation>
        </message>
        <message>
            <source>“%@” is not an effect document.</source>
            <translation>“%@”不是效果文档。</translation>
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
