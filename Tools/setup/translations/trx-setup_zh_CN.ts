<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CheckWords</name>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%1 in good order</source>
        <translation>%1 个正常</translation>
    </message>
    <message>
        <source>%1 without effect</source>
        <translation>%1 个无效</translation>
    </message>
    <message>
        <source>nothing stored yet</source>
        <translation>尚未保存任何内容</translation>
    </message>
    <message>
        <source>1 USB device seen</source>
        <translation>发现 1 个 USB 设备</translation>
    </message>
    <message>
        <source>%1 USB devices seen</source>
        <translation>发现 %1 个 USB 设备</translation>
    </message>
    <message>
        <source>no other product of the maker is connected</source>
        <translation>没有连接该厂商的其他产品</translation>
    </message>
    <message>
        <source>also connected: %1</source>
        <translation>还连接了：%1</translation>
    </message>
    <message>
        <source>a mixer is connected</source>
        <translation>已连接混音台</translation>
    </message>
    <message>
        <source>found: %1</source>
        <translation>已找到：%1</translation>
    </message>
    <message>
        <source>%1 may be opened</source>
        <translation>可以打开 %1</translation>
    </message>
    <message>
        <source>every mixer that may be opened answers</source>
        <translation>所有可以打开的混音台都有应答</translation>
    </message>
    <message>
        <source>reached</source>
        <translation>可用</translation>
    </message>
    <message>
        <source>library %1, package %2</source>
        <translation>库 %1，软件包 %2</translation>
    </message>
    <message>
        <source>You may not open the mixer</source>
        <translation>您无权打开混音台</translation>
    </message>
    <message>
        <source>It is connected, but this computer lets only administrators use it. Let an administrator run the command below once, then plug the mixer in again.</source>
        <translation>混音台已连接，但此电脑只允许管理员使用。请让管理员运行一次下面的命令，然后重新插上混音台。</translation>
    </message>
    <message>
        <source>Your settings cannot be kept</source>
        <translation>无法保存您的设置</translation>
    </message>
    <message>
        <source>The disk is full. Delete files that you do not need.</source>
        <translation>磁盘已满。请删除不需要的文件。</translation>
    </message>
    <message>
        <source>The disk can only be read. Let an administrator change that.</source>
        <translation>磁盘只能读取。请让管理员更改。</translation>
    </message>
    <message>
        <source>A file is in the place of the folder %1. Move it elsewhere.</source>
        <translation>文件夹 %1 的位置上有一个文件。请将其移走。</translation>
    </message>
    <message>
        <source>The folder %1 is not writable. Give yourself the right to write to it.</source>
        <translation>无法写入文件夹 %1。请给自己写入权限。</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>无法读取您的设置</translation>
    </message>
    <message>
        <source>%1 holds no settings. Remove it.</source>
        <translation>%1 中没有设置。请将其删除。</translation>
    </message>
    <message>
        <source>%1 is no file. Remove it.</source>
        <translation>%1 不是文件。请将其删除。</translation>
    </message>
    <message>
        <source>A stored setting is no choice</source>
        <translation>有一个已保存的设置无效</translation>
    </message>
    <message>
        <source>%1 is stored with a number that no choice has. Choose it anew.</source>
        <translation>%1：保存的编号没有对应的选项。请重新选择。</translation>
    </message>
    <message>
        <source>Earlier settings were set aside</source>
        <translation>以前的设置已另行存放</translation>
    </message>
    <message>
        <source>They could not be read, and are kept in %1. Remove that file if you do not need it.</source>
        <translation>这些设置无法读取，存放在 %1。如不需要，请删除该文件。</translation>
    </message>
    <message>
        <source>%1 cannot be read. Give yourself the right to read it, or remove it.</source>
        <translation>无法读取 %1。请给自己读取权限，或将其删除。</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Other products</source>
        <translation>其他产品</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>混音台</translation>
    </message>
    <message>
        <source>Device file</source>
        <translation>设备文件</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>权限</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>应答</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>会话总线</translation>
    </message>
    <message>
        <source>Settings folder</source>
        <translation>设置文件夹</translation>
    </message>
    <message>
        <source>Settings files</source>
        <translation>设置文件</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>no USB device seen</source>
        <translation>没有发现 USB 设备</translation>
    </message>
    <message>
        <source>but no mixer</source>
        <translation>但没有混音台</translation>
    </message>
    <message>
        <source>You may not open it</source>
        <translation>您无权打开</translation>
    </message>
    <message>
        <source>This computer shows no USB at all</source>
        <translation>此电脑上看不到任何 USB</translation>
    </message>
    <message>
        <source>Is this a virtual machine or a container? It needs a USB controller.</source>
        <translation>这是虚拟机或容器吗？它需要 USB 控制器。</translation>
    </message>
    <message>
        <source>This product has no settings here</source>
        <translation>此产品在这里没有设置</translation>
    </message>
    <message>
        <source>%1 is connected. It is not a mixer that this program can set. Connect a mixer of the TRX-SELVA family.</source>
        <translation>已连接 %1。本程序无法设置它。请连接 TRX-SELVA 系列的混音台。</translation>
    </message>
    <message>
        <source>No mixer found</source>
        <translation>没有找到混音台</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept.</source>
        <translation>请用 USB 连接混音台并打开电源。这期间您所选的内容会保存下来。</translation>
    </message>
    <message>
        <source>The mixer cannot be opened</source>
        <translation>无法打开混音台</translation>
    </message>
    <message>
        <source>The file %1 is missing. Plug the mixer out and in again.</source>
        <translation>缺少文件 %1。请拔下混音台再插上。</translation>
    </message>
    <message>
        <source>Another program holds the mixer</source>
        <translation>另一个程序占用了混音台</translation>
    </message>
    <message>
        <source>Only one program at a time may use it so. End that program. The command below names it.</source>
        <translation>同时只能有一个程序这样使用。请退出那个程序。下面的命令会显示它的名称。</translation>
    </message>
    <message>
        <source>Plug it out and in again. The system says: %1.</source>
        <translation>请拔下再插上。系统信息：%1。</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 没有应答</translation>
    </message>
    <message>
        <source>Switch it off and on again, and connect it without a hub. Your settings are kept.</source>
        <translation>请关闭电源再打开，并且不经集线器直接连接。您的设置已保存。</translation>
    </message>
    <message>
        <source>There is no session bus</source>
        <translation>没有会话总线</translation>
    </message>
    <message>
        <source>Changes made by other programs show up a little later. Log out and in again.</source>
        <translation>其他程序所做的更改会稍晚显示。请注销后重新登录。</translation>
    </message>
    <message>
        <source>This user has no home folder.</source>
        <translation>此用户没有主文件夹。</translation>
    </message>
    <message>
        <source>The installation is not complete</source>
        <translation>安装不完整</translation>
    </message>
    <message>
        <source>Files with versions are missing. Install the package again.</source>
        <translation>缺少版本文件。请重新安装软件包。</translation>
    </message>
    <message>
        <source>turned off</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>on</source>
        <translation>已开启</translation>
    </message>
    <message>
        <source>At plug-in</source>
        <translation>接入时</translation>
    </message>
    <message>
        <source>Settings cannot be sent to a mixer that is plugged in</source>
        <translation>无法将设置发送到接入的混音台</translation>
    </message>
</context>
<context>
    <name>HeaderWords</name>
    <message>
        <source>No mixer</source>
        <translation>没有混音台</translation>
    </message>
    <message>
        <source>%1 mixers  ·  %2</source>
        <translation>%1 台混音台  ·  %2</translation>
    </message>
    <message>
        <source>Looking for one on USB</source>
        <translation>正在 USB 上查找</translation>
    </message>
    <message>
        <source>Connected, but cannot be opened</source>
        <translation>已连接，但无法打开</translation>
    </message>
    <message>
        <source>Does not answer: %1</source>
        <translation>没有应答：%1</translation>
    </message>
    <message>
        <source>Connected, but does not answer</source>
        <translation>已连接，但没有应答</translation>
    </message>
    <message>
        <source>Cannot be opened: %1</source>
        <translation>无法打开：%1</translation>
    </message>
    <message>
        <source>Every setting goes to all of them: %1</source>
        <translation>每项设置都会发送给全部混音台：%1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Serial number %1</source>
        <translation>序列号 %1</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>固件 %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family.</source>
        <translation>设置 TRX-SELVA 系列的 USB DJ 混音台。</translation>
    </message>
    <message>
        <source>Show this model while no mixer is connected.</source>
        <translation>没有连接混音台时显示此型号。</translation>
    </message>
    <message>
        <source>Use light, dark, light-contrast or dark-contrast colours, whatever the desktop uses.</source>
        <translation>使用 light、dark、light-contrast 或 dark-contrast 颜色，不随桌面变化。</translation>
    </message>
</context>
<context>
    <name>ProfileFaultWords</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>配置需要一个名称。</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>此名称太长。</translation>
    </message>
    <message>
        <source>This name has characters that a name cannot have.</source>
        <translation>此名称中有不能使用的字符。</translation>
    </message>
    <message>
        <source>This user has no home folder to keep profiles in.</source>
        <translation>此用户没有可以保存配置的主文件夹。</translation>
    </message>
    <message>
        <source>There is no profile %1 any more.</source>
        <translation>配置“%1”已不存在。</translation>
    </message>
    <message>
        <source>There is a profile %1 already.</source>
        <translation>已有配置“%1”。</translation>
    </message>
    <message>
        <source>There is a file %1 already.</source>
        <translation>已有文件“%1”。</translation>
    </message>
    <message>
        <source>The file is named for another profile, %1. Import it.</source>
        <translation>此文件用的是另一个配置“%1”的名称。请导入它。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>无法读取 %1：%2。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>%1 is set to an unknown choice. Choose it anew first.</source>
        <translation>%1 的选项未知。请先重新选择。</translation>
    </message>
    <message>
        <source>This profile is from a newer version of this program.</source>
        <translation>此配置来自本程序的较新版本。</translation>
    </message>
    <message>
        <source>This profile is for a mixer that is not known here: %1.</source>
        <translation>此配置用于这里不认识的混音台：%1。</translation>
    </message>
    <message>
        <source>The mixer has no choice &quot;%1&quot;.</source>
        <translation>混音台没有选项“%1”。</translation>
    </message>
    <message>
        <source>This profile holds something that the mixer does not have: %1.</source>
        <translation>此配置中有混音台没有的内容：%1。</translation>
    </message>
    <message>
        <source>This profile holds no settings.</source>
        <translation>此配置中没有设置。</translation>
    </message>
    <message>
        <source>This file is no profile.</source>
        <translation>此文件不是配置。</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1 refused it.</source>
        <translation>%1 拒绝了。</translation>
    </message>
    <message>
        <source>%1 did not answer.</source>
        <translation>%1 没有应答。</translation>
    </message>
    <message>
        <source>%1 was unplugged.</source>
        <translation>%1 已被拔下。</translation>
    </message>
    <message>
        <source>%1 may not be opened.</source>
        <translation>无权打开 %1。</translation>
    </message>
    <message>
        <source>Another program holds %1.</source>
        <translation>另一个程序占用了 %1。</translation>
    </message>
    <message>
        <source>%1 did not take it.</source>
        <translation>%1 没有接受。</translation>
    </message>
    <message>
        <source>Kept. No mixer is connected.</source>
        <translation>已保存。没有连接混音台。</translation>
    </message>
    <message>
        <source>Kept, but not sent:</source>
        <translation>已保存，但未发送：</translation>
    </message>
    <message>
        <source>Sent to %1.</source>
        <translation>已发送到 %1。</translation>
    </message>
    <message>
        <source>Sent to one mixer.</source>
        <translation>已发送到混音台。</translation>
    </message>
    <message>
        <source>Sent to %1 mixers.</source>
        <translation>已发送到 %1 台混音台。</translation>
    </message>
    <message>
        <source>USB %1</source>
        <translation>USB %1</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 录制</translation>
    </message>
    <message>
        <source>%1 plays to</source>
        <translation>%1 播放到</translation>
    </message>
    <message>
        <source>Boost level</source>
        <translation>增益电平</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>MIDI 通道</translation>
    </message>
    <message>
        <source>Unknown choice</source>
        <translation>未知选项</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Sending to %1 mixers …</source>
        <translation>正在发送到 %1 台混音台…</translation>
    </message>
    <message>
        <source>Sending …</source>
        <translation>正在发送…</translation>
    </message>
    <message>
        <source>The mixer settings refused this choice.</source>
        <translation>此选项未被接受。</translation>
    </message>
    <message>
        <source>Sent, but this computer could not keep it.</source>
        <translation>已发送，但此电脑无法保存。</translation>
    </message>
    <message>
        <source>This computer could not keep the choice.</source>
        <translation>此电脑无法保存所选内容。</translation>
    </message>
    <message>
        <source>No mixer is connected.</source>
        <translation>没有连接混音台。</translation>
    </message>
    <message>
        <source>Not all settings were sent:</source>
        <translation>有些设置没有发送：</translation>
    </message>
    <message>
        <source>All settings were sent.</source>
        <translation>所有设置都已发送。</translation>
    </message>
    <message>
        <source>Sent all but these; choose them anew: %1.</source>
        <translation>除以下各项外均已发送，请重新选择：%1。</translation>
    </message>
    <message>
        <source>This could not be changed: %1.</source>
        <translation>无法更改：%1。</translation>
    </message>
    <message>
        <source>A mixer was plugged in: %1</source>
        <translation>插上了一台混音台：%1</translation>
    </message>
    <message>
        <source>The input selector of CH%1 is not on USB</source>
        <translation>CH%1 的输入选择开关不在 USB 位置</translation>
    </message>
    <message>
        <source>The signal of the mixer that the computer records on %1.</source>
        <translation>计算机在 %1 上录制的混音台信号。</translation>
    </message>
    <message>
        <source>The mixer channel that the computer plays %1 to.</source>
        <translation>计算机播放 %1 的混音台通道。</translation>
    </message>
    <message>
        <source>How loud you record.</source>
        <translation>录音的音量。</translation>
    </message>
    <message>
        <source>The MIDI channel that the mixer uses.</source>
        <translation>混音台使用的 MIDI 通道。</translation>
    </message>
    <message>
        <source>Not possible in this session.</source>
        <translation>在此会话中不可用。</translation>
    </message>
    <message>
        <source>Turned off by an administrator.</source>
        <translation>已被管理员关闭。</translation>
    </message>
    <message>
        <source>Install the package trxctl for this.</source>
        <translation>需要安装软件包 trxctl。</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>TRX Setup</source>
        <translation>TRX Setup</translation>
    </message>
</context>
<context>
    <name>setup::DetailsDialog</name>
    <message>
        <source>&amp;Look again</source>
        <translation>重新检查(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>What was checked</source>
        <translation>检查结果</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>关闭(&amp;O)</translation>
    </message>
    <message>
        <source>Looking …</source>
        <translation>正在检查…</translation>
    </message>
</context>
<context>
    <name>setup::Header</name>
    <message>
        <source>Pro&amp;files</source>
        <translation>配置(&amp;F)</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Profiles: %1</source>
        <translation>配置：%1</translation>
    </message>
</context>
<context>
    <name>setup::PluggedInCard</name>
    <message>
        <source>When a mixer is plugged in</source>
        <translation>插上混音台时</translation>
    </message>
    <message>
        <source>&amp;Send my settings to it</source>
        <translation>发送我的设置(&amp;S)</translation>
    </message>
</context>
<context>
    <name>setup::ProfileMenu</name>
    <message>
        <source>There is a profile %1 already. Replace it?</source>
        <translation>已有配置“%1”。要替换吗？</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
    </message>
    <message>
        <source>No profiles yet</source>
        <translation>还没有配置</translation>
    </message>
    <message>
        <source>&amp;Save as …</source>
        <translation>另存为(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Import …</source>
        <translation>导入(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>导出(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>配置的名称：</translation>
    </message>
    <message>
        <source>Save profile</source>
        <translation>保存配置</translation>
    </message>
    <message>
        <source>Rename profile</source>
        <translation>重命名配置</translation>
    </message>
    <message>
        <source>Delete the profile %1?</source>
        <translation>要删除配置“%1”吗？</translation>
    </message>
    <message>
        <source>Export profile</source>
        <translation>导出配置</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>配置 (*.json)</translation>
    </message>
    <message>
        <source>Import profile</source>
        <translation>导入配置</translation>
    </message>
</context>
<context>
    <name>setup::ProfileShelf</name>
    <message>
        <source>%1 is for another mixer, %2.</source>
        <translation>%1 用于另一种混音台：%2。</translation>
    </message>
    <message>
        <source>%1 loaded. Ctrl+Z takes it back.</source>
        <translation>已载入 %1。按 Ctrl+Z 可撤销。</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>已保存为 %1。</translation>
    </message>
    <message>
        <source>%1 is called %2 now.</source>
        <translation>%1 现在的名称是 %2。</translation>
    </message>
    <message>
        <source>%1 is deleted.</source>
        <translation>已删除 %1。</translation>
    </message>
    <message>
        <source>%1 is written to %2.</source>
        <translation>%1 已写入 %2。</translation>
    </message>
    <message>
        <source>%1 is among your profiles now. Choose it in the menu to load it.</source>
        <translation>%1 已加入您的配置。要载入，请在菜单中选择它。</translation>
    </message>
</context>
<context>
    <name>setup::SettingCard</name>
    <message>
        <source>%1: %2</source>
        <comment>setting: choice</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>how loud you record</source>
        <translation>录音的响度</translation>
    </message>
    <message>
        <source>set by another program</source>
        <translation>由其他程序设置</translation>
    </message>
</context>
<context>
    <name>setup::SetupWindow</name>
    <message>
        <source>TRX Setup</source>
        <translation>TRX Setup</translation>
    </message>
    <message>
        <source>%1 %2: set by another program</source>
        <translation>%1：%2（由其他程序设置）</translation>
    </message>
    <message>
        <source>Computer &amp;plays</source>
        <translation>电脑播放(&amp;P)</translation>
    </message>
    <message>
        <source>to this mixer channel</source>
        <translation>到混音台的这个通道</translation>
    </message>
    <message>
        <source>Computer &amp;records</source>
        <translation>电脑录制(&amp;R)</translation>
    </message>
    <message>
        <source>this signal of the mixer</source>
        <translation>混音台的这个信号</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Send all settings again</source>
        <translation>重新发送所有设置(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>重新查找(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Why is my mixer not found?</source>
        <translation>为什么找不到我的混音台？(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;About and versions</source>
        <translation>关于和版本(&amp;A)</translation>
    </message>
    <message>
        <source>There is no session bus: changes made by other programs show up here a little later.</source>
        <translation>没有会话总线：其他程序所做的更改会稍晚显示在这里。</translation>
    </message>
    <message>
        <source>Play %1 here</source>
        <translation>%1 播放到这里</translation>
    </message>
    <message>
        <source>Record on %1</source>
        <translation>录制到 %1</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>显示详情(&amp;D)</translation>
    </message>
</context>
<context>
    <name>setup::SignalList</name>
    <message>
        <source>Unknown choice</source>
        <translation>未知选项</translation>
    </message>
</context>
<context>
    <name>setup::TroubleCard</name>
    <message>
        <source>good</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>复制命令(&amp;C)</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>显示详情(&amp;D)</translation>
    </message>
    <message>
        <source>The command is copied.</source>
        <translation>命令已复制。</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept, and sent as soon as it is there.</source>
        <translation>请用 USB 连接混音台并打开电源。这期间您所选的内容会保存下来，并在混音台接入后立即发送。</translation>
    </message>
</context>
<context>
    <name>setup::VersionsDialog</name>
    <message>
        <source>not installed</source>
        <translation>未安装</translation>
    </message>
    <message>
        <source>About and versions</source>
        <translation>关于和版本</translation>
    </message>
    <message>
        <source>TRX Setup</source>
        <translation>TRX Setup</translation>
    </message>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family. A choice is sent to every connected mixer at once and kept on this computer.</source>
        <translation>设置 TRX-SELVA 系列的 USB DJ 混音台。所选内容会立即发送到每台已连接的混音台，并保存在此电脑上。</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>关闭(&amp;O)</translation>
    </message>
    <message>
        <source>This program</source>
        <translation>本程序</translation>
    </message>
    <message>
        <source>Firmware of the mixer</source>
        <translation>混音台的固件</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>软件包</translation>
    </message>
    <message>
        <source>Setup application</source>
        <translation>设置程序</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>库</translation>
    </message>
</context>
</TS>
