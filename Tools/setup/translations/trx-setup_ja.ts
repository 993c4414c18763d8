<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CheckWords</name>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%1 in good order</source>
        <translation>%1件は正常</translation>
    </message>
    <message>
        <source>%1 without effect</source>
        <translation>%1件は無効</translation>
    </message>
    <message>
        <source>nothing stored yet</source>
        <translation>まだ何も保存されていません</translation>
    </message>
    <message>
        <source>1 USB device seen</source>
        <translation>USB機器が1台見つかりました</translation>
    </message>
    <message>
        <source>%1 USB devices seen</source>
        <translation>USB機器が%1台見つかりました</translation>
    </message>
    <message>
        <source>no other product of the maker is connected</source>
        <translation>このメーカーのほかの製品は接続されていません</translation>
    </message>
    <message>
        <source>also connected: %1</source>
        <translation>ほかに接続されている製品：%1</translation>
    </message>
    <message>
        <source>a mixer is connected</source>
        <translation>ミキサーが接続されています</translation>
    </message>
    <message>
        <source>found: %1</source>
        <translation>見つかりました：%1</translation>
    </message>
    <message>
        <source>%1 may be opened</source>
        <translation>%1は開けます</translation>
    </message>
    <message>
        <source>every mixer that may be opened answers</source>
        <translation>開けるミキサーはすべて応答しています</translation>
    </message>
    <message>
        <source>reached</source>
        <translation>接続できています</translation>
    </message>
    <message>
        <source>library %1, package %2</source>
        <translation>ライブラリー %1、パッケージ %2</translation>
    </message>
    <message>
        <source>You may not open the mixer</source>
        <translation>ミキサーを開く権限がありません</translation>
    </message>
    <message>
        <source>It is connected, but this computer lets only administrators use it. Let an administrator run the command below once, then plug the mixer in again.</source>
        <translation>ミキサーは接続されていますが、このパソコンでは管理者しか使えません。管理者に下のコマンドを一度実行してもらい、ミキサーを接続し直してください。</translation>
    </message>
    <message>
        <source>Your settings cannot be kept</source>
        <translation>設定を保存できません</translation>
    </message>
    <message>
        <source>The disk is full. Delete files that you do not need.</source>
        <translation>ディスクの空きがありません。不要なファイルを削除してください。</translation>
    </message>
    <message>
        <source>The disk can only be read. Let an administrator change that.</source>
        <translation>ディスクは読み取り専用です。管理者に変更してもらってください。</translation>
    </message>
    <message>
        <source>A file is in the place of the folder %1. Move it elsewhere.</source>
        <translation>フォルダー%1の場所にファイルがあります。別の場所へ移してください。</translation>
    </message>
    <message>
        <source>The folder %1 is not writable. Give yourself the right to write to it.</source>
        <translation>フォルダー%1に書き込めません。書き込みの権限を付けてください。</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>設定を読み込めません</translation>
    </message>
    <message>
        <source>%1 holds no settings. Remove it.</source>
        <translation>%1は設定ファイルではありません。削除してください。</translation>
    </message>
    <message>
        <source>%1 is no file. Remove it.</source>
        <translation>%1はファイルではありません。削除してください。</translation>
    </message>
    <message>
        <source>A stored setting is no choice</source>
        <translation>保存された設定に無効なものがあります</translation>
    </message>
    <message>
        <source>%1 is stored with a number that no choice has. Choose it anew.</source>
        <translation>%1：保存された番号に当たる選択肢がありません。選び直してください。</translation>
    </message>
    <message>
        <source>Earlier settings were set aside</source>
        <translation>以前の設定を別に保管しました</translation>
    </message>
    <message>
        <source>They could not be read, and are kept in %1. Remove that file if you do not need it.</source>
        <translation>読み込めなかったため、%1に保管してあります。不要なら、このファイルを削除してください。</translation>
    </message>
    <message>
        <source>%1 cannot be read. Give yourself the right to read it, or remove it.</source>
        <translation>%1を読み込めません。読み取りの権限を付けるか、削除してください。</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Other products</source>
        <translation>ほかの製品</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>ミキサー</translation>
    </message>
    <message>
        <source>Device file</source>
        <translation>デバイスファイル</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>権限</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>応答</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>セッションバス</translation>
    </message>
    <message>
        <source>Settings folder</source>
        <translation>設定フォルダー</translation>
    </message>
    <message>
        <source>Settings files</source>
        <translation>設定ファイル</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>no USB device seen</source>
        <translation>USB機器が見つかりません</translation>
    </message>
    <message>
        <source>but no mixer</source>
        <translation>ミキサーはありません</translation>
    </message>
    <message>
        <source>You may not open it</source>
        <translation>開く権限がありません</translation>
    </message>
    <message>
        <source>This computer shows no USB at all</source>
        <translation>このパソコンにはUSBがありません</translation>
    </message>
    <message>
        <source>Is this a virtual machine or a container? It needs a USB controller.</source>
        <translation>仮想マシンやコンテナではありませんか。USBコントローラーが必要です。</translation>
    </message>
    <message>
        <source>This product has no settings here</source>
        <translation>この製品にはここで変えられる設定がありません</translation>
    </message>
    <message>
        <source>%1 is connected. It is not a mixer that this program can set. Connect a mixer of the TRX-SELVA family.</source>
        <translation>%1が接続されています。このプログラムでは設定できません。TRX-SELVAシリーズのミキサーを接続してください。</translation>
    </message>
    <message>
        <source>No mixer found</source>
        <translation>ミキサーが見つかりません</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept.</source>
        <translation>ミキサーをUSBで接続し、電源を入れてください。その間に選んだ内容は保存されます。</translation>
    </message>
    <message>
        <source>The mixer cannot be opened</source>
        <translation>ミキサーを開けません</translation>
    </message>
    <message>
        <source>The file %1 is missing. Plug the mixer out and in again.</source>
        <translation>ファイル%1がありません。ミキサーを接続し直してください。</translation>
    </message>
    <message>
        <source>Another program holds the mixer</source>
        <translation>ほかのプログラムがミキサーを使っています</translation>
    </message>
    <message>
        <source>Only one program at a time may use it so. End that program. The command below names it.</source>
        <translation>同時に使えるのは1つのプログラムだけです。そのプログラムを終了してください。下のコマンドで名前がわかります。</translation>
    </message>
    <message>
        <source>Plug it out and in again. The system says: %1.</source>
        <translation>接続し直してください。システムのメッセージ：%1。</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1が応答しません</translation>
    </message>
    <message>
        <source>Switch it off and on again, and connect it without a hub. Your settings are kept.</source>
        <translation>電源を入れ直し、ハブを通さずに接続してください。設定は保存されています。</translation>
    </message>
    <message>
        <source>There is no session bus</source>
        <translation>セッションバスがありません</translation>
    </message>
    <message>
        <source>Changes made by other programs show up a little later. Log out and in again.</source>
        <translation>ほかのプログラムによる変更は少し遅れて表示されます。ログインし直してください。</translation>
    </message>
    <message>
        <source>This user has no home folder.</source>
        <translation>このユーザーにはホームフォルダーがありません。</translation>
    </message>
    <message>
        <source>The installation is not complete</source>
        <translation>インストールが不完全です</translation>
    </message>
    <message>
        <source>Files with versions are missing. Install the package again.</source>
        <translation>バージョンのファイルがありません。パッケージをインストールし直してください。</translation>
    </message>
    <message>
        <source>turned off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>At plug-in</source>
        <translation>接続時</translation>
    </message>
    <message>
        <source>Settings cannot be sent to a mixer that is plugged in</source>
        <translation>接続されたミキサーに設定を送信できません</translation>
    </message>
</context>
<context>
    <name>HeaderWords</name>
    <message>
        <source>No mixer</source>
        <translation>ミキサーなし</translation>
    </message>
    <message>
        <source>%1 mixers  ·  %2</source>
        <translation>ミキサー%1台  ·  %2</translation>
    </message>
    <message>
        <source>Looking for one on USB</source>
        <translation>USBでミキサーを探しています</translation>
    </message>
    <message>
        <source>Connected, but cannot be opened</source>
        <translation>接続中ですが、開けません</translation>
    </message>
    <message>
        <source>Does not answer: %1</source>
        <translation>応答なし：%1</translation>
    </message>
    <message>
        <source>Connected, but does not answer</source>
        <translation>接続中ですが、応答がありません</translation>
    </message>
    <message>
        <source>Cannot be opened: %1</source>
        <translation>開けません：%1</translation>
    </message>
    <message>
        <source>Every setting goes to all of them: %1</source>
        <translation>設定はすべてのミキサーに送られます：%1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>Serial number %1</source>
        <translation>シリアル番号 %1</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>ファームウェア %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family.</source>
        <translation>TRX-SELVAシリーズのUSB DJミキサーを設定します。</translation>
    </message>
    <message>
        <source>Show this model while no mixer is connected.</source>
        <translation>ミキサーが接続されていないときに、このモデルを表示します。</translation>
    </message>
    <message>
        <source>Use light, dark, light-contrast or dark-contrast colours, whatever the desktop uses.</source>
        <translation>デスクトップの設定にかかわらず、light、dark、light-contrast、dark-contrastの配色を使います。</translation>
    </message>
</context>
<context>
    <name>ProfileFaultWords</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>プロファイルには名前が必要です。</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>この名前は長すぎます。</translation>
    </message>
    <message>
        <source>This name has characters that a name cannot have.</source>
        <translation>この名前には使えない文字があります。</translation>
    </message>
    <message>
        <source>This user has no home folder to keep profiles in.</source>
        <translation>このユーザーには、プロファイルを保存するホームフォルダーがありません。</translation>
    </message>
    <message>
        <source>There is no profile %1 any more.</source>
        <translation>プロファイル「%1」はもうありません。</translation>
    </message>
    <message>
        <source>There is a profile %1 already.</source>
        <translation>プロファイル「%1」はすでにあります。</translation>
    </message>
    <message>
        <source>There is a file %1 already.</source>
        <translation>ファイル「%1」はすでにあります。</translation>
    </message>
    <message>
        <source>The file is named for another profile, %1. Import it.</source>
        <translation>このファイルの名前は別のプロファイル「%1」のものです。インポートしてください。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1を読み込めません：%2。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1に書き込めません：%2。</translation>
    </message>
    <message>
        <source>%1 is set to an unknown choice. Choose it anew first.</source>
        <translation>%1の設定が不明です。先に選び直してください。</translation>
    </message>
    <message>
        <source>This profile is from a newer version of this program.</source>
        <translation>このプロファイルは、このプログラムの新しいバージョンで作られています。</translation>
    </message>
    <message>
        <source>This profile is for a mixer that is not known here: %1.</source>
        <translation>このプロファイルは、ここでは扱えないミキサー用です：%1。</translation>
    </message>
    <message>
        <source>The mixer has no choice &quot;%1&quot;.</source>
        <translation>このミキサーには「%1」がありません。</translation>
    </message>
    <message>
        <source>This profile holds something that the mixer does not have: %1.</source>
        <translation>このプロファイルには、このミキサーにない項目があります：%1。</translation>
    </message>
    <message>
        <source>This profile holds no settings.</source>
        <translation>このプロファイルには設定がありません。</translation>
    </message>
    <message>
        <source>This file is no profile.</source>
        <translation>このファイルはプロファイルではありません。</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1 refused it.</source>
        <translation>%1が拒否しました。</translation>
    </message>
    <message>
        <source>%1 did not answer.</source>
        <translation>%1から応答がありませんでした。</translation>
    </message>
    <message>
        <source>%1 was unplugged.</source>
        <translation>%1が抜かれました。</translation>
    </message>
    <message>
        <source>%1 may not be opened.</source>
        <translation>%1を開く権限がありません。</translation>
    </message>
    <message>
        <source>Another program holds %1.</source>
        <translation>ほかのプログラムが%1を使っています。</translation>
    </message>
    <message>
        <source>%1 did not take it.</source>
        <translation>%1には反映されませんでした。</translation>
    </message>
    <message>
        <source>Kept. No mixer is connected.</source>
        <translation>保存しました。ミキサーは接続されていません。</translation>
    </message>
    <message>
        <source>Kept, but not sent:</source>
        <translation>保存しましたが、送信できませんでした：</translation>
    </message>
    <message>
        <source>Sent to %1.</source>
        <translation>%1に送信しました。</translation>
    </message>
    <message>
        <source>Sent to one mixer.</source>
        <translation>ミキサーに送信しました。</translation>
    </message>
    <message>
        <source>Sent to %1 mixers.</source>
        <translation>ミキサー%1台に送信しました。</translation>
    </message>
    <message>
        <source>USB %1</source>
        <translation>USB %1</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1の録音</translation>
    </message>
    <message>
        <source>%1 plays to</source>
        <translation>%1の再生先</translation>
    </message>
    <message>
        <source>Boost level</source>
        <translation>ブーストレベル</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>MIDIチャンネル</translation>
    </message>
    <message>
        <source>Unknown choice</source>
        <translation>不明な選択</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Sending to %1 mixers …</source>
        <translation>ミキサー%1台に送信中…</translation>
    </message>
    <message>
        <source>Sending …</source>
        <translation>送信中…</translation>
    </message>
    <message>
        <source>The mixer settings refused this choice.</source>
        <translation>この選択は受け付けられませんでした。</translation>
    </message>
    <message>
        <source>Sent, but this computer could not keep it.</source>
        <translation>送信しましたが、このパソコンに保存できませんでした。</translation>
    </message>
    <message>
        <source>This computer could not keep the choice.</source>
        <translation>このパソコンに選択を保存できませんでした。</translation>
    </message>
    <message>
        <source>No mixer is connected.</source>
        <translation>ミキサーは接続されていません。</translation>
    </message>
    <message>
        <source>Not all settings were sent:</source>
        <translation>一部の設定を送信できませんでした：</translation>
    </message>
    <message>
        <source>All settings were sent.</source>
        <translation>すべての設定を送信しました。</translation>
    </message>
    <message>
        <source>Sent all but these; choose them anew: %1.</source>
        <translation>次の設定以外を送信しました。選び直してください：%1。</translation>
    </message>
    <message>
        <source>This could not be changed: %1.</source>
        <translation>変更できませんでした：%1。</translation>
    </message>
    <message>
        <source>A mixer was plugged in: %1</source>
        <translation>ミキサーが接続されました：%1</translation>
    </message>
    <message>
        <source>The input selector of CH%1 is not on USB</source>
        <translation>CH%1のインプットセレクターがUSB以外です</translation>
    </message>
    <message>
        <source>The signal of the mixer that the computer records on %1.</source>
        <translation>コンピューターが %1 に録音するミキサーの信号。</translation>
    </message>
    <message>
        <source>The mixer channel that the computer plays %1 to.</source>
        <translation>コンピューターが %1 を再生するミキサーチャンネル。</translation>
    </message>
    <message>
        <source>How loud you record.</source>
        <translation>録音の音量。</translation>
    </message>
    <message>
        <source>The MIDI channel that the mixer uses.</source>
        <translation>ミキサーが使う MIDI チャンネル。</translation>
    </message>
    <message>
        <source>Not possible in this session.</source>
        <translation>このセッションでは使えません。</translation>
    </message>
    <message>
        <source>Turned off by an administrator.</source>
        <translation>管理者がオフにしています。</translation>
    </message>
    <message>
        <source>Install the package trxctl for this.</source>
        <translation>パッケージtrxctlが必要です。</translation>
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
        <translation>再確認(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>What was checked</source>
        <translation>確認した内容</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;O)</translation>
    </message>
    <message>
        <source>Looking …</source>
        <translation>確認中…</translation>
    </message>
</context>
<context>
    <name>setup::Header</name>
    <message>
        <source>Pro&amp;files</source>
        <translation>プロファイル(&amp;F)</translation>
    </message>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Profiles: %1</source>
        <translation>プロファイル：%1</translation>
    </message>
</context>
<context>
    <name>setup::PluggedInCard</name>
    <message>
        <source>When a mixer is plugged in</source>
        <translation>ミキサーの接続時</translation>
    </message>
    <message>
        <source>&amp;Send my settings to it</source>
        <translation>設定を送信(&amp;S)</translation>
    </message>
</context>
<context>
    <name>setup::ProfileMenu</name>
    <message>
        <source>There is a profile %1 already. Replace it?</source>
        <translation>プロファイル「%1」はすでにあります。置き換えますか？</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>置き換える(&amp;R)</translation>
    </message>
    <message>
        <source>No profiles yet</source>
        <translation>プロファイルはまだありません</translation>
    </message>
    <message>
        <source>&amp;Save as …</source>
        <translation>名前を付けて保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Import …</source>
        <translation>インポート(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>名前の変更(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>エクスポート(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>プロファイルの名前：</translation>
    </message>
    <message>
        <source>Save profile</source>
        <translation>プロファイルの保存</translation>
    </message>
    <message>
        <source>Rename profile</source>
        <translation>プロファイル名の変更</translation>
    </message>
    <message>
        <source>Delete the profile %1?</source>
        <translation>プロファイル「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>Export profile</source>
        <translation>プロファイルのエクスポート</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>プロファイル (*.json)</translation>
    </message>
    <message>
        <source>Import profile</source>
        <translation>プロファイルのインポート</translation>
    </message>
</context>
<context>
    <name>setup::ProfileShelf</name>
    <message>
        <source>%1 is for another mixer, %2.</source>
        <translation>%1は別のミキサー（%2）用です。</translation>
    </message>
    <message>
        <source>%1 loaded. Ctrl+Z takes it back.</source>
        <translation>%1を読み込みました。Ctrl+Zで元に戻せます。</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>%1として保存しました。</translation>
    </message>
    <message>
        <source>%1 is called %2 now.</source>
        <translation>%1の名前を%2に変えました。</translation>
    </message>
    <message>
        <source>%1 is deleted.</source>
        <translation>%1を削除しました。</translation>
    </message>
    <message>
        <source>%1 is written to %2.</source>
        <translation>%1を%2に書き出しました。</translation>
    </message>
    <message>
        <source>%1 is among your profiles now. Choose it in the menu to load it.</source>
        <translation>%1をプロファイルに加えました。読み込むにはメニューで選んでください。</translation>
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
        <translation>録音の音量</translation>
    </message>
    <message>
        <source>set by another program</source>
        <translation>ほかのプログラムが変更</translation>
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
        <translation>%1：%2（ほかのプログラムが変更）</translation>
    </message>
    <message>
        <source>Computer &amp;plays</source>
        <translation>パソコンの再生(&amp;P)</translation>
    </message>
    <message>
        <source>to this mixer channel</source>
        <translation>再生先のミキサーチャンネル</translation>
    </message>
    <message>
        <source>Computer &amp;records</source>
        <translation>パソコンの録音(&amp;R)</translation>
    </message>
    <message>
        <source>this signal of the mixer</source>
        <translation>録音するミキサーの信号</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Send all settings again</source>
        <translation>すべての設定を再送信(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>再検索(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Why is my mixer not found?</source>
        <translation>ミキサーが見つからない理由(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;About and versions</source>
        <translation>バージョン情報(&amp;A)</translation>
    </message>
    <message>
        <source>There is no session bus: changes made by other programs show up here a little later.</source>
        <translation>セッションバスがありません。ほかのプログラムによる変更は少し遅れて表示されます。</translation>
    </message>
    <message>
        <source>Play %1 here</source>
        <translation>%1をここで再生</translation>
    </message>
    <message>
        <source>Record on %1</source>
        <translation>%1に録音</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>詳細を表示(&amp;D)</translation>
    </message>
</context>
<context>
    <name>setup::SignalList</name>
    <message>
        <source>Unknown choice</source>
        <translation>不明な選択</translation>
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
        <translation>問題あり</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>コマンドをコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>詳細を表示(&amp;D)</translation>
    </message>
    <message>
        <source>The command is copied.</source>
        <translation>コマンドをコピーしました。</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept, and sent as soon as it is there.</source>
        <translation>ミキサーをUSBで接続し、電源を入れてください。その間に選んだ内容は保存され、接続されるとすぐに送信されます。</translation>
    </message>
</context>
<context>
    <name>setup::VersionsDialog</name>
    <message>
        <source>not installed</source>
        <translation>インストールされていません</translation>
    </message>
    <message>
        <source>About and versions</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>TRX Setup</source>
        <translation>TRX Setup</translation>
    </message>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family. A choice is sent to every connected mixer at once and kept on this computer.</source>
        <translation>TRX-SELVAシリーズのUSB DJミキサーを設定します。選んだ内容は、接続中のすべてのミキサーにすぐ送られ、このパソコンに保存されます。</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;O)</translation>
    </message>
    <message>
        <source>This program</source>
        <translation>このプログラム</translation>
    </message>
    <message>
        <source>Firmware of the mixer</source>
        <translation>ミキサーのファームウェア</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>パッケージ</translation>
    </message>
    <message>
        <source>Setup application</source>
        <translation>設定アプリ</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>ライブラリー</translation>
    </message>
</context>
</TS>
