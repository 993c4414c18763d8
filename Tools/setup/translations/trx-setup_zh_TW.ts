<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>CheckWords</name>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%1 in good order</source>
        <translation>%1 個正常</translation>
    </message>
    <message>
        <source>%1 without effect</source>
        <translation>%1 個無效</translation>
    </message>
    <message>
        <source>nothing stored yet</source>
        <translation>尚未儲存任何內容</translation>
    </message>
    <message>
        <source>1 USB device seen</source>
        <translation>找到 1 個 USB 裝置</translation>
    </message>
    <message>
        <source>%1 USB devices seen</source>
        <translation>找到 %1 個 USB 裝置</translation>
    </message>
    <message>
        <source>no other product of the maker is connected</source>
        <translation>沒有連接該廠商的其他產品</translation>
    </message>
    <message>
        <source>also connected: %1</source>
        <translation>另外連接了：%1</translation>
    </message>
    <message>
        <source>a mixer is connected</source>
        <translation>已連接混音器</translation>
    </message>
    <message>
        <source>found: %1</source>
        <translation>已找到：%1</translation>
    </message>
    <message>
        <source>%1 may be opened</source>
        <translation>可以開啟 %1</translation>
    </message>
    <message>
        <source>every mixer that may be opened answers</source>
        <translation>所有可開啟的混音器都有回應</translation>
    </message>
    <message>
        <source>reached</source>
        <translation>可用</translation>
    </message>
    <message>
        <source>library %1, package %2</source>
        <translation>程式庫 %1，套件 %2</translation>
    </message>
    <message>
        <source>You may not open the mixer</source>
        <translation>您沒有開啟混音器的權限</translation>
    </message>
    <message>
        <source>It is connected, but this computer lets only administrators use it. Let an administrator run the command below once, then plug the mixer in again.</source>
        <translation>混音器已連接，但這部電腦只允許管理員使用。請管理員執行一次下方的指令，然後重新接上混音器。</translation>
    </message>
    <message>
        <source>Your settings cannot be kept</source>
        <translation>無法儲存您的設定</translation>
    </message>
    <message>
        <source>The disk is full. Delete files that you do not need.</source>
        <translation>磁碟已滿。請刪除不需要的檔案。</translation>
    </message>
    <message>
        <source>The disk can only be read. Let an administrator change that.</source>
        <translation>磁碟只能讀取。請管理員變更。</translation>
    </message>
    <message>
        <source>A file is in the place of the folder %1. Move it elsewhere.</source>
        <translation>資料夾 %1 的位置上有一個檔案。請將它移走。</translation>
    </message>
    <message>
        <source>The folder %1 is not writable. Give yourself the right to write to it.</source>
        <translation>無法寫入資料夾 %1。請給自己寫入權限。</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>無法讀取您的設定</translation>
    </message>
    <message>
        <source>%1 holds no settings. Remove it.</source>
        <translation>%1 沒有設定。請將它刪除。</translation>
    </message>
    <message>
        <source>%1 is no file. Remove it.</source>
        <translation>%1 不是檔案。請將它刪除。</translation>
    </message>
    <message>
        <source>A stored setting is no choice</source>
        <translation>有一項已儲存的設定無效</translation>
    </message>
    <message>
        <source>%1 is stored with a number that no choice has. Choose it anew.</source>
        <translation>%1：儲存的編號沒有對應的選項。請重新選擇。</translation>
    </message>
    <message>
        <source>Earlier settings were set aside</source>
        <translation>先前的設定已另外存放</translation>
    </message>
    <message>
        <source>They could not be read, and are kept in %1. Remove that file if you do not need it.</source>
        <translation>這些設定無法讀取，存放在 %1。若不需要，請刪除該檔案。</translation>
    </message>
    <message>
        <source>%1 cannot be read. Give yourself the right to read it, or remove it.</source>
        <translation>無法讀取 %1。請給自己讀取權限，或將它刪除。</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Other products</source>
        <translation>其他產品</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>混音器</translation>
    </message>
    <message>
        <source>Device file</source>
        <translation>裝置檔案</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>權限</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>回應</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>工作階段匯流排</translation>
    </message>
    <message>
        <source>Settings folder</source>
        <translation>設定資料夾</translation>
    </message>
    <message>
        <source>Settings files</source>
        <translation>設定的檔案</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>安裝</translation>
    </message>
    <message>
        <source>no USB device seen</source>
        <translation>找不到 USB 裝置</translation>
    </message>
    <message>
        <source>but no mixer</source>
        <translation>但沒有混音器</translation>
    </message>
    <message>
        <source>You may not open it</source>
        <translation>您沒有開啟的權限</translation>
    </message>
    <message>
        <source>This computer shows no USB at all</source>
        <translation>這部電腦上看不到任何 USB</translation>
    </message>
    <message>
        <source>Is this a virtual machine or a container? It needs a USB controller.</source>
        <translation>這是虛擬機器或容器嗎？它需要 USB 控制器。</translation>
    </message>
    <message>
        <source>This product has no settings here</source>
        <translation>這項產品在這裡沒有設定</translation>
    </message>
    <message>
        <source>%1 is connected. It is not a mixer that this program can set. Connect a mixer of the TRX-SELVA family.</source>
        <translation>已連接 %1。本程式無法設定它。請連接 TRX-SELVA 系列的混音器。</translation>
    </message>
    <message>
        <source>No mixer found</source>
        <translation>找不到混音器</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept.</source>
        <translation>請用 USB 連接混音器並開啟電源。這段期間您所選的內容會儲存下來。</translation>
    </message>
    <message>
        <source>The mixer cannot be opened</source>
        <translation>無法開啟混音器</translation>
    </message>
    <message>
        <source>The file %1 is missing. Plug the mixer out and in again.</source>
        <translation>缺少檔案 %1。請拔下混音器再接上。</translation>
    </message>
    <message>
        <source>Another program holds the mixer</source>
        <translation>另一個程式占用了混音器</translation>
    </message>
    <message>
        <source>Only one program at a time may use it so. End that program. The command below names it.</source>
        <translation>這樣使用時，一次只能有一個程式。請結束那個程式。下方的指令會顯示它的名稱。</translation>
    </message>
    <message>
        <source>Plug it out and in again. The system says: %1.</source>
        <translation>請拔下再接上。系統訊息：%1。</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 沒有回應</translation>
    </message>
    <message>
        <source>Switch it off and on again, and connect it without a hub. Your settings are kept.</source>
        <translation>請關閉電源再開啟，並且不經集線器直接連接。您的設定已儲存。</translation>
    </message>
    <message>
        <source>There is no session bus</source>
        <translation>沒有工作階段匯流排</translation>
    </message>
    <message>
        <source>Changes made by other programs show up a little later. Log out and in again.</source>
        <translation>其他程式所做的變更會稍晚顯示。請登出後再登入。</translation>
    </message>
    <message>
        <source>This user has no home folder.</source>
        <translation>這位使用者沒有家目錄。</translation>
    </message>
    <message>
        <source>The installation is not complete</source>
        <translation>安裝不完整</translation>
    </message>
    <message>
        <source>Files with versions are missing. Install the package again.</source>
        <translation>缺少版本檔案。請重新安裝套件。</translation>
    </message>
    <message>
        <source>turned off</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>on</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>At plug-in</source>
        <translation>連接時</translation>
    </message>
    <message>
        <source>Settings cannot be sent to a mixer that is plugged in</source>
        <translation>無法將設定傳送到連接的混音器</translation>
    </message>
</context>
<context>
    <name>HeaderWords</name>
    <message>
        <source>No mixer</source>
        <translation>沒有混音器</translation>
    </message>
    <message>
        <source>%1 mixers  ·  %2</source>
        <translation>%1 部混音器  ·  %2</translation>
    </message>
    <message>
        <source>Looking for one on USB</source>
        <translation>正在 USB 上尋找</translation>
    </message>
    <message>
        <source>Connected, but cannot be opened</source>
        <translation>已連接，但無法開啟</translation>
    </message>
    <message>
        <source>Does not answer: %1</source>
        <translation>沒有回應：%1</translation>
    </message>
    <message>
        <source>Connected, but does not answer</source>
        <translation>已連接，但沒有回應</translation>
    </message>
    <message>
        <source>Cannot be opened: %1</source>
        <translation>無法開啟：%1</translation>
    </message>
    <message>
        <source>Every setting goes to all of them: %1</source>
        <translation>每項設定都會送到全部混音器：%1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已連接</translation>
    </message>
    <message>
        <source>Serial number %1</source>
        <translation>序號 %1</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>韌體 %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family.</source>
        <translation>設定 TRX-SELVA 系列的 USB DJ 混音器。</translation>
    </message>
    <message>
        <source>Show this model while no mixer is connected.</source>
        <translation>沒有連接混音器時顯示這個型號。</translation>
    </message>
    <message>
        <source>Use light, dark, light-contrast or dark-contrast colours, whatever the desktop uses.</source>
        <translation>使用 light、dark、light-contrast 或 dark-contrast 色彩，不隨桌面改變。</translation>
    </message>
</context>
<context>
    <name>ProfileFaultWords</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>設定檔需要名稱。</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>這個名稱太長。</translation>
    </message>
    <message>
        <source>This name has characters that a name cannot have.</source>
        <translation>這個名稱含有不能使用的字元。</translation>
    </message>
    <message>
        <source>This user has no home folder to keep profiles in.</source>
        <translation>這位使用者沒有可存放設定檔的家目錄。</translation>
    </message>
    <message>
        <source>There is no profile %1 any more.</source>
        <translation>設定檔「%1」已不存在。</translation>
    </message>
    <message>
        <source>There is a profile %1 already.</source>
        <translation>已有設定檔「%1」。</translation>
    </message>
    <message>
        <source>There is a file %1 already.</source>
        <translation>已有檔案「%1」。</translation>
    </message>
    <message>
        <source>The file is named for another profile, %1. Import it.</source>
        <translation>這個檔案用的是另一個設定檔「%1」的名稱。請匯入它。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>無法讀取 %1：%2。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>無法寫入 %1：%2。</translation>
    </message>
    <message>
        <source>%1 is set to an unknown choice. Choose it anew first.</source>
        <translation>%1 的選項不明。請先重新選擇。</translation>
    </message>
    <message>
        <source>This profile is from a newer version of this program.</source>
        <translation>這個設定檔來自本程式的較新版本。</translation>
    </message>
    <message>
        <source>This profile is for a mixer that is not known here: %1.</source>
        <translation>這個設定檔適用於這裡不認得的混音器：%1。</translation>
    </message>
    <message>
        <source>The mixer has no choice &quot;%1&quot;.</source>
        <translation>混音器沒有「%1」這個選項。</translation>
    </message>
    <message>
        <source>This profile holds something that the mixer does not have: %1.</source>
        <translation>這個設定檔有混音器沒有的內容：%1。</translation>
    </message>
    <message>
        <source>This profile holds no settings.</source>
        <translation>這個設定檔沒有任何設定。</translation>
    </message>
    <message>
        <source>This file is no profile.</source>
        <translation>這個檔案不是設定檔。</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1 refused it.</source>
        <translation>%1 拒絕了。</translation>
    </message>
    <message>
        <source>%1 did not answer.</source>
        <translation>%1 沒有回應。</translation>
    </message>
    <message>
        <source>%1 was unplugged.</source>
        <translation>%1 已拔下。</translation>
    </message>
    <message>
        <source>%1 may not be opened.</source>
        <translation>沒有開啟 %1 的權限。</translation>
    </message>
    <message>
        <source>Another program holds %1.</source>
        <translation>另一個程式占用了 %1。</translation>
    </message>
    <message>
        <source>%1 did not take it.</source>
        <translation>%1 沒有接受。</translation>
    </message>
    <message>
        <source>Kept. No mixer is connected.</source>
        <translation>已儲存。沒有連接混音器。</translation>
    </message>
    <message>
        <source>Kept, but not sent:</source>
        <translation>已儲存，但未送出：</translation>
    </message>
    <message>
        <source>Sent to %1.</source>
        <translation>已送到 %1。</translation>
    </message>
    <message>
        <source>Sent to one mixer.</source>
        <translation>已送到混音器。</translation>
    </message>
    <message>
        <source>Sent to %1 mixers.</source>
        <translation>已送到 %1 部混音器。</translation>
    </message>
    <message>
        <source>USB %1</source>
        <translation>USB %1</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 錄製</translation>
    </message>
    <message>
        <source>%1 plays to</source>
        <translation>%1 播放到</translation>
    </message>
    <message>
        <source>Boost level</source>
        <translation>增益電平</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>MIDI 聲道</translation>
    </message>
    <message>
        <source>Unknown choice</source>
        <translation>不明的選項</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Sending to %1 mixers …</source>
        <translation>正在送到 %1 部混音器…</translation>
    </message>
    <message>
        <source>Sending …</source>
        <translation>正在送出…</translation>
    </message>
    <message>
        <source>The mixer settings refused this choice.</source>
        <translation>這個選項未被接受。</translation>
    </message>
    <message>
        <source>Sent, but this computer could not keep it.</source>
        <translation>已送出，但這部電腦無法儲存。</translation>
    </message>
    <message>
        <source>This computer could not keep the choice.</source>
        <translation>這部電腦無法儲存所選內容。</translation>
    </message>
    <message>
        <source>No mixer is connected.</source>
        <translation>沒有連接混音器。</translation>
    </message>
    <message>
        <source>Not all settings were sent:</source>
        <translation>有些設定沒有送出：</translation>
    </message>
    <message>
        <source>All settings were sent.</source>
        <translation>所有設定都已送出。</translation>
    </message>
    <message>
        <source>Sent all but these; choose them anew: %1.</source>
        <translation>除了以下各項都已送出，請重新選擇：%1。</translation>
    </message>
    <message>
        <source>This could not be changed: %1.</source>
        <translation>無法變更：%1。</translation>
    </message>
    <message>
        <source>A mixer was plugged in: %1</source>
        <translation>接上了一部混音器：%1</translation>
    </message>
    <message>
        <source>The input selector of CH%1 is not on USB</source>
        <translation>CH%1 的輸入選擇開關不在 USB 位置</translation>
    </message>
    <message>
        <source>The signal of the mixer that the computer records on %1.</source>
        <translation>電腦在 %1 上錄製的混音器訊號。</translation>
    </message>
    <message>
        <source>The mixer channel that the computer plays %1 to.</source>
        <translation>電腦播放 %1 的混音器聲道。</translation>
    </message>
    <message>
        <source>How loud you record.</source>
        <translation>錄音的音量。</translation>
    </message>
    <message>
        <source>The MIDI channel that the mixer uses.</source>
        <translation>混音器使用的 MIDI 頻道。</translation>
    </message>
    <message>
        <source>Not possible in this session.</source>
        <translation>在這個工作階段中無法使用。</translation>
    </message>
    <message>
        <source>Turned off by an administrator.</source>
        <translation>已由管理員關閉。</translation>
    </message>
    <message>
        <source>Install the package trxctl for this.</source>
        <translation>需要安裝套件 trxctl。</translation>
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
        <translation>重新檢查(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>複製(&amp;C)</translation>
    </message>
    <message>
        <source>What was checked</source>
        <translation>檢查結果</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>關閉(&amp;O)</translation>
    </message>
    <message>
        <source>Looking …</source>
        <translation>正在檢查…</translation>
    </message>
</context>
<context>
    <name>setup::Header</name>
    <message>
        <source>Pro&amp;files</source>
        <translation>設定檔(&amp;F)</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>設定檔</translation>
    </message>
    <message>
        <source>Profiles: %1</source>
        <translation>設定檔：%1</translation>
    </message>
</context>
<context>
    <name>setup::PluggedInCard</name>
    <message>
        <source>When a mixer is plugged in</source>
        <translation>接上混音器時</translation>
    </message>
    <message>
        <source>&amp;Send my settings to it</source>
        <translation>送出我的設定(&amp;S)</translation>
    </message>
</context>
<context>
    <name>setup::ProfileMenu</name>
    <message>
        <source>There is a profile %1 already. Replace it?</source>
        <translation>已有設定檔「%1」。要取代嗎？</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>取代(&amp;R)</translation>
    </message>
    <message>
        <source>No profiles yet</source>
        <translation>還沒有設定檔</translation>
    </message>
    <message>
        <source>&amp;Save as …</source>
        <translation>另存新檔(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Import …</source>
        <translation>匯入(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重新命名(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>匯出(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>刪除(&amp;D)</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>設定檔的名稱：</translation>
    </message>
    <message>
        <source>Save profile</source>
        <translation>儲存設定檔</translation>
    </message>
    <message>
        <source>Rename profile</source>
        <translation>重新命名設定檔</translation>
    </message>
    <message>
        <source>Delete the profile %1?</source>
        <translation>要刪除設定檔「%1」嗎？</translation>
    </message>
    <message>
        <source>Export profile</source>
        <translation>匯出設定檔</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>設定檔 (*.json)</translation>
    </message>
    <message>
        <source>Import profile</source>
        <translation>匯入設定檔</translation>
    </message>
</context>
<context>
    <name>setup::ProfileShelf</name>
    <message>
        <source>%1 is for another mixer, %2.</source>
        <translation>%1 適用於另一種混音器：%2。</translation>
    </message>
    <message>
        <source>%1 loaded. Ctrl+Z takes it back.</source>
        <translation>已載入 %1。按 Ctrl+Z 可復原。</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>已儲存為 %1。</translation>
    </message>
    <message>
        <source>%1 is called %2 now.</source>
        <translation>%1 現在的名稱是 %2。</translation>
    </message>
    <message>
        <source>%1 is deleted.</source>
        <translation>已刪除 %1。</translation>
    </message>
    <message>
        <source>%1 is written to %2.</source>
        <translation>%1 已寫入 %2。</translation>
    </message>
    <message>
        <source>%1 is among your profiles now. Choose it in the menu to load it.</source>
        <translation>%1 已加入您的設定檔。若要載入，請在選單中選擇它。</translation>
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
        <translation>錄音的音量</translation>
    </message>
    <message>
        <source>set by another program</source>
        <translation>由其他程式設定</translation>
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
        <translation>%1：%2（由其他程式設定）</translation>
    </message>
    <message>
        <source>Computer &amp;plays</source>
        <translation>電腦播放(&amp;P)</translation>
    </message>
    <message>
        <source>to this mixer channel</source>
        <translation>到混音器的這個聲道</translation>
    </message>
    <message>
        <source>Computer &amp;records</source>
        <translation>電腦錄製(&amp;R)</translation>
    </message>
    <message>
        <source>this signal of the mixer</source>
        <translation>混音器的這個訊號</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>復原(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Send all settings again</source>
        <translation>重新送出所有設定(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>重新尋找(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Why is my mixer not found?</source>
        <translation>為什麼找不到我的混音器？(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;About and versions</source>
        <translation>關於與版本(&amp;A)</translation>
    </message>
    <message>
        <source>There is no session bus: changes made by other programs show up here a little later.</source>
        <translation>沒有工作階段匯流排：其他程式所做的變更會稍晚顯示在這裡。</translation>
    </message>
    <message>
        <source>Play %1 here</source>
        <translation>%1 播放到這裡</translation>
    </message>
    <message>
        <source>Record on %1</source>
        <translation>錄製到 %1</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>顯示詳細資料(&amp;D)</translation>
    </message>
</context>
<context>
    <name>setup::SignalList</name>
    <message>
        <source>Unknown choice</source>
        <translation>不明的選項</translation>
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
        <translation>問題</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>複製指令(&amp;C)</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>顯示詳細資料(&amp;D)</translation>
    </message>
    <message>
        <source>The command is copied.</source>
        <translation>指令已複製。</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept, and sent as soon as it is there.</source>
        <translation>請用 USB 連接混音器並開啟電源。這段期間您所選的內容會儲存下來，並在混音器連接後立即傳送。</translation>
    </message>
</context>
<context>
    <name>setup::VersionsDialog</name>
    <message>
        <source>not installed</source>
        <translation>未安裝</translation>
    </message>
    <message>
        <source>About and versions</source>
        <translation>關於與版本</translation>
    </message>
    <message>
        <source>TRX Setup</source>
        <translation>TRX Setup</translation>
    </message>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family. A choice is sent to every connected mixer at once and kept on this computer.</source>
        <translation>設定 TRX-SELVA 系列的 USB DJ 混音器。所選內容會立即送到每部已連接的混音器，並儲存在這部電腦上。</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>關閉(&amp;O)</translation>
    </message>
    <message>
        <source>This program</source>
        <translation>本程式</translation>
    </message>
    <message>
        <source>Firmware of the mixer</source>
        <translation>混音器的韌體</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>套件</translation>
    </message>
    <message>
        <source>Setup application</source>
        <translation>設定程式</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>程式庫</translation>
    </message>
</context>
</TS>
