<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>CheckWords</name>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 in good order</source>
        <translation>%1개 정상</translation>
    </message>
    <message>
        <source>%1 without effect</source>
        <translation>%1개 효과 없음</translation>
    </message>
    <message>
        <source>nothing stored yet</source>
        <translation>아직 저장된 것이 없음</translation>
    </message>
    <message>
        <source>1 USB device seen</source>
        <translation>USB 장치 1개를 찾음</translation>
    </message>
    <message>
        <source>%1 USB devices seen</source>
        <translation>USB 장치 %1개를 찾음</translation>
    </message>
    <message>
        <source>no other product of the maker is connected</source>
        <translation>제조사의 다른 제품이 연결되어 있지 않음</translation>
    </message>
    <message>
        <source>also connected: %1</source>
        <translation>함께 연결됨: %1</translation>
    </message>
    <message>
        <source>a mixer is connected</source>
        <translation>믹서가 연결됨</translation>
    </message>
    <message>
        <source>found: %1</source>
        <translation>찾음: %1</translation>
    </message>
    <message>
        <source>%1 may be opened</source>
        <translation>%1을(를) 열 수 있음</translation>
    </message>
    <message>
        <source>every mixer that may be opened answers</source>
        <translation>열 수 있는 모든 믹서가 응답함</translation>
    </message>
    <message>
        <source>reached</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>library %1, package %2</source>
        <translation>라이브러리 %1, 패키지 %2</translation>
    </message>
    <message>
        <source>You may not open the mixer</source>
        <translation>믹서를 열 권한이 없습니다</translation>
    </message>
    <message>
        <source>It is connected, but this computer lets only administrators use it. Let an administrator run the command below once, then plug the mixer in again.</source>
        <translation>믹서가 연결되어 있지만 이 컴퓨터에서는 관리자만 쓸 수 있습니다. 관리자에게 아래 명령을 한 번 실행해 달라고 한 뒤 믹서를 다시 연결하십시오.</translation>
    </message>
    <message>
        <source>Your settings cannot be kept</source>
        <translation>설정을 저장할 수 없습니다</translation>
    </message>
    <message>
        <source>The disk is full. Delete files that you do not need.</source>
        <translation>디스크가 가득 찼습니다. 필요 없는 파일을 지우십시오.</translation>
    </message>
    <message>
        <source>The disk can only be read. Let an administrator change that.</source>
        <translation>디스크가 읽기 전용입니다. 관리자에게 변경을 요청하십시오.</translation>
    </message>
    <message>
        <source>A file is in the place of the folder %1. Move it elsewhere.</source>
        <translation>폴더 %1의 자리에 파일이 있습니다. 다른 곳으로 옮기십시오.</translation>
    </message>
    <message>
        <source>The folder %1 is not writable. Give yourself the right to write to it.</source>
        <translation>폴더 %1에 쓸 수 없습니다. 쓰기 권한을 주십시오.</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>설정을 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>%1 holds no settings. Remove it.</source>
        <translation>%1에 설정이 없습니다. 지우십시오.</translation>
    </message>
    <message>
        <source>%1 is no file. Remove it.</source>
        <translation>%1은(는) 파일이 아닙니다. 지우십시오.</translation>
    </message>
    <message>
        <source>A stored setting is no choice</source>
        <translation>저장된 설정 하나가 올바르지 않습니다</translation>
    </message>
    <message>
        <source>%1 is stored with a number that no choice has. Choose it anew.</source>
        <translation>%1: 저장된 번호에 해당하는 선택 항목이 없습니다. 다시 선택하십시오.</translation>
    </message>
    <message>
        <source>Earlier settings were set aside</source>
        <translation>이전 설정을 따로 보관했습니다</translation>
    </message>
    <message>
        <source>They could not be read, and are kept in %1. Remove that file if you do not need it.</source>
        <translation>읽을 수 없어서 %1에 보관했습니다. 필요 없으면 그 파일을 지우십시오.</translation>
    </message>
    <message>
        <source>%1 cannot be read. Give yourself the right to read it, or remove it.</source>
        <translation>%1을(를) 읽을 수 없습니다. 읽기 권한을 주거나 지우십시오.</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Other products</source>
        <translation>다른 제품</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>믹서</translation>
    </message>
    <message>
        <source>Device file</source>
        <translation>장치 파일</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>권한</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>응답</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>세션 버스</translation>
    </message>
    <message>
        <source>Settings folder</source>
        <translation>설정 폴더</translation>
    </message>
    <message>
        <source>Settings files</source>
        <translation>설정 파일</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>설치</translation>
    </message>
    <message>
        <source>no USB device seen</source>
        <translation>USB 장치를 찾지 못함</translation>
    </message>
    <message>
        <source>but no mixer</source>
        <translation>믹서는 없음</translation>
    </message>
    <message>
        <source>You may not open it</source>
        <translation>열 권한이 없습니다</translation>
    </message>
    <message>
        <source>This computer shows no USB at all</source>
        <translation>이 컴퓨터에 USB가 보이지 않습니다</translation>
    </message>
    <message>
        <source>Is this a virtual machine or a container? It needs a USB controller.</source>
        <translation>가상 머신이나 컨테이너입니까? USB 컨트롤러가 필요합니다.</translation>
    </message>
    <message>
        <source>This product has no settings here</source>
        <translation>이 제품은 여기서 설정할 것이 없습니다</translation>
    </message>
    <message>
        <source>%1 is connected. It is not a mixer that this program can set. Connect a mixer of the TRX-SELVA family.</source>
        <translation>%1이(가) 연결되어 있습니다. 이 프로그램으로 설정할 수 없습니다. TRX-SELVA 제품군의 믹서를 연결하십시오.</translation>
    </message>
    <message>
        <source>No mixer found</source>
        <translation>믹서를 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept.</source>
        <translation>믹서를 USB로 연결하고 전원을 켜십시오. 그동안 선택한 것은 저장됩니다.</translation>
    </message>
    <message>
        <source>The mixer cannot be opened</source>
        <translation>믹서를 열 수 없습니다</translation>
    </message>
    <message>
        <source>The file %1 is missing. Plug the mixer out and in again.</source>
        <translation>파일 %1이(가) 없습니다. 믹서를 뺐다가 다시 연결하십시오.</translation>
    </message>
    <message>
        <source>Another program holds the mixer</source>
        <translation>다른 프로그램이 믹서를 쓰고 있습니다</translation>
    </message>
    <message>
        <source>Only one program at a time may use it so. End that program. The command below names it.</source>
        <translation>이렇게는 한 번에 한 프로그램만 쓸 수 있습니다. 그 프로그램을 끝내십시오. 아래 명령이 이름을 알려 줍니다.</translation>
    </message>
    <message>
        <source>Plug it out and in again. The system says: %1.</source>
        <translation>뺐다가 다시 연결하십시오. 시스템 메시지: %1.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1이(가) 응답하지 않습니다</translation>
    </message>
    <message>
        <source>Switch it off and on again, and connect it without a hub. Your settings are kept.</source>
        <translation>전원을 껐다가 켜고 허브 없이 연결하십시오. 설정은 저장되어 있습니다.</translation>
    </message>
    <message>
        <source>There is no session bus</source>
        <translation>세션 버스가 없습니다</translation>
    </message>
    <message>
        <source>Changes made by other programs show up a little later. Log out and in again.</source>
        <translation>다른 프로그램의 변경이 조금 늦게 나타납니다. 로그아웃했다가 다시 로그인하십시오.</translation>
    </message>
    <message>
        <source>This user has no home folder.</source>
        <translation>이 사용자에게는 홈 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>The installation is not complete</source>
        <translation>설치가 완전하지 않습니다</translation>
    </message>
    <message>
        <source>Files with versions are missing. Install the package again.</source>
        <translation>버전 파일이 없습니다. 패키지를 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>turned off</source>
        <translation>꺼짐</translation>
    </message>
    <message>
        <source>on</source>
        <translation>켜짐</translation>
    </message>
    <message>
        <source>At plug-in</source>
        <translation>연결할 때</translation>
    </message>
    <message>
        <source>Settings cannot be sent to a mixer that is plugged in</source>
        <translation>연결된 믹서로 설정을 보낼 수 없습니다</translation>
    </message>
</context>
<context>
    <name>HeaderWords</name>
    <message>
        <source>No mixer</source>
        <translation>믹서 없음</translation>
    </message>
    <message>
        <source>%1 mixers  ·  %2</source>
        <translation>믹서 %1대  ·  %2</translation>
    </message>
    <message>
        <source>Looking for one on USB</source>
        <translation>USB에서 찾는 중</translation>
    </message>
    <message>
        <source>Connected, but cannot be opened</source>
        <translation>연결되었지만 열 수 없음</translation>
    </message>
    <message>
        <source>Does not answer: %1</source>
        <translation>응답 없음: %1</translation>
    </message>
    <message>
        <source>Connected, but does not answer</source>
        <translation>연결되었지만 응답 없음</translation>
    </message>
    <message>
        <source>Cannot be opened: %1</source>
        <translation>열 수 없음: %1</translation>
    </message>
    <message>
        <source>Every setting goes to all of them: %1</source>
        <translation>모든 설정이 모든 믹서로 전송됩니다: %1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>Serial number %1</source>
        <translation>일련 번호 %1</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>펌웨어 %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family.</source>
        <translation>TRX-SELVA 제품군의 USB DJ 믹서를 설정합니다.</translation>
    </message>
    <message>
        <source>Show this model while no mixer is connected.</source>
        <translation>믹서가 연결되지 않은 동안 이 모델을 표시합니다.</translation>
    </message>
    <message>
        <source>Use light, dark, light-contrast or dark-contrast colours, whatever the desktop uses.</source>
        <translation>데스크톱과 관계없이 light, dark, light-contrast, dark-contrast 색상을 씁니다.</translation>
    </message>
</context>
<context>
    <name>ProfileFaultWords</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>프로필에는 이름이 필요합니다.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>이 이름은 너무 깁니다.</translation>
    </message>
    <message>
        <source>This name has characters that a name cannot have.</source>
        <translation>이 이름에는 쓸 수 없는 문자가 있습니다.</translation>
    </message>
    <message>
        <source>This user has no home folder to keep profiles in.</source>
        <translation>이 사용자에게는 프로필을 저장할 홈 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>There is no profile %1 any more.</source>
        <translation>프로필 %1이(가) 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>There is a profile %1 already.</source>
        <translation>프로필 %1이(가) 이미 있습니다.</translation>
    </message>
    <message>
        <source>There is a file %1 already.</source>
        <translation>파일 %1이(가) 이미 있습니다.</translation>
    </message>
    <message>
        <source>The file is named for another profile, %1. Import it.</source>
        <translation>이 파일은 다른 프로필 %1의 이름을 쓰고 있습니다. 가져오십시오.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1을(를) 읽을 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1에 쓸 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>%1 is set to an unknown choice. Choose it anew first.</source>
        <translation>%1의 설정을 알 수 없습니다. 먼저 다시 선택하십시오.</translation>
    </message>
    <message>
        <source>This profile is from a newer version of this program.</source>
        <translation>이 프로필은 이 프로그램의 새 버전에서 만든 것입니다.</translation>
    </message>
    <message>
        <source>This profile is for a mixer that is not known here: %1.</source>
        <translation>이 프로필은 여기서 알 수 없는 믹서용입니다: %1.</translation>
    </message>
    <message>
        <source>The mixer has no choice &quot;%1&quot;.</source>
        <translation>믹서에 “%1” 선택 항목이 없습니다.</translation>
    </message>
    <message>
        <source>This profile holds something that the mixer does not have: %1.</source>
        <translation>이 프로필에는 믹서에 없는 내용이 있습니다: %1.</translation>
    </message>
    <message>
        <source>This profile holds no settings.</source>
        <translation>이 프로필에는 설정이 없습니다.</translation>
    </message>
    <message>
        <source>This file is no profile.</source>
        <translation>이 파일은 프로필이 아닙니다.</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1 refused it.</source>
        <translation>%1이(가) 거부했습니다.</translation>
    </message>
    <message>
        <source>%1 did not answer.</source>
        <translation>%1이(가) 응답하지 않았습니다.</translation>
    </message>
    <message>
        <source>%1 was unplugged.</source>
        <translation>%1의 연결이 끊겼습니다.</translation>
    </message>
    <message>
        <source>%1 may not be opened.</source>
        <translation>%1을(를) 열 권한이 없습니다.</translation>
    </message>
    <message>
        <source>Another program holds %1.</source>
        <translation>다른 프로그램이 %1을(를) 쓰고 있습니다.</translation>
    </message>
    <message>
        <source>%1 did not take it.</source>
        <translation>%1에 적용되지 않았습니다.</translation>
    </message>
    <message>
        <source>Kept. No mixer is connected.</source>
        <translation>저장했습니다. 연결된 믹서가 없습니다.</translation>
    </message>
    <message>
        <source>Kept, but not sent:</source>
        <translation>저장했지만 전송하지 못했습니다:</translation>
    </message>
    <message>
        <source>Sent to %1.</source>
        <translation>%1(으)로 전송했습니다.</translation>
    </message>
    <message>
        <source>Sent to one mixer.</source>
        <translation>믹서로 전송했습니다.</translation>
    </message>
    <message>
        <source>Sent to %1 mixers.</source>
        <translation>믹서 %1대로 전송했습니다.</translation>
    </message>
    <message>
        <source>USB %1</source>
        <translation>USB %1</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 녹음</translation>
    </message>
    <message>
        <source>%1 plays to</source>
        <translation>%1 재생 채널</translation>
    </message>
    <message>
        <source>Boost level</source>
        <translation>부스트 레벨</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>MIDI 채널</translation>
    </message>
    <message>
        <source>Unknown choice</source>
        <translation>알 수 없는 선택</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Sending to %1 mixers …</source>
        <translation>믹서 %1대로 전송 중…</translation>
    </message>
    <message>
        <source>Sending …</source>
        <translation>전송 중…</translation>
    </message>
    <message>
        <source>The mixer settings refused this choice.</source>
        <translation>이 선택은 받아들여지지 않았습니다.</translation>
    </message>
    <message>
        <source>Sent, but this computer could not keep it.</source>
        <translation>전송했지만 이 컴퓨터에 저장하지 못했습니다.</translation>
    </message>
    <message>
        <source>This computer could not keep the choice.</source>
        <translation>이 컴퓨터에 선택을 저장하지 못했습니다.</translation>
    </message>
    <message>
        <source>No mixer is connected.</source>
        <translation>연결된 믹서가 없습니다.</translation>
    </message>
    <message>
        <source>Not all settings were sent:</source>
        <translation>전송하지 못한 설정이 있습니다:</translation>
    </message>
    <message>
        <source>All settings were sent.</source>
        <translation>모든 설정을 전송했습니다.</translation>
    </message>
    <message>
        <source>Sent all but these; choose them anew: %1.</source>
        <translation>다음을 빼고 모두 전송했습니다. 다시 선택하십시오: %1.</translation>
    </message>
    <message>
        <source>This could not be changed: %1.</source>
        <translation>변경하지 못했습니다: %1.</translation>
    </message>
    <message>
        <source>A mixer was plugged in: %1</source>
        <translation>믹서가 연결되었습니다: %1</translation>
    </message>
    <message>
        <source>The input selector of CH%1 is not on USB</source>
        <translation>CH%1의 입력 셀렉터가 USB에 있지 않습니다</translation>
    </message>
    <message>
        <source>The signal of the mixer that the computer records on %1.</source>
        <translation>컴퓨터가 %1에 녹음하는 믹서의 신호입니다.</translation>
    </message>
    <message>
        <source>The mixer channel that the computer plays %1 to.</source>
        <translation>컴퓨터가 %1을(를) 재생하는 믹서 채널입니다.</translation>
    </message>
    <message>
        <source>How loud you record.</source>
        <translation>녹음 음량입니다.</translation>
    </message>
    <message>
        <source>The MIDI channel that the mixer uses.</source>
        <translation>믹서가 사용하는 MIDI 채널입니다.</translation>
    </message>
    <message>
        <source>Not possible in this session.</source>
        <translation>이 세션에서는 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>Turned off by an administrator.</source>
        <translation>관리자가 껐습니다.</translation>
    </message>
    <message>
        <source>Install the package trxctl for this.</source>
        <translation>패키지 trxctl이 필요합니다.</translation>
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
        <translation>다시 검사(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>What was checked</source>
        <translation>검사한 내용</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>닫기(&amp;O)</translation>
    </message>
    <message>
        <source>Looking …</source>
        <translation>검사 중…</translation>
    </message>
</context>
<context>
    <name>setup::Header</name>
    <message>
        <source>Pro&amp;files</source>
        <translation>프로필(&amp;F)</translation>
    </message>
    <message>
        <source>More</source>
        <translation>더 보기</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>프로필</translation>
    </message>
    <message>
        <source>Profiles: %1</source>
        <translation>프로필: %1</translation>
    </message>
</context>
<context>
    <name>setup::PluggedInCard</name>
    <message>
        <source>When a mixer is plugged in</source>
        <translation>믹서를 연결할 때</translation>
    </message>
    <message>
        <source>&amp;Send my settings to it</source>
        <translation>내 설정 전송(&amp;S)</translation>
    </message>
</context>
<context>
    <name>setup::ProfileMenu</name>
    <message>
        <source>There is a profile %1 already. Replace it?</source>
        <translation>프로필 %1이(가) 이미 있습니다. 바꿀까요?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>바꾸기(&amp;R)</translation>
    </message>
    <message>
        <source>No profiles yet</source>
        <translation>아직 프로필이 없음</translation>
    </message>
    <message>
        <source>&amp;Save as …</source>
        <translation>다른 이름으로 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Import …</source>
        <translation>가져오기(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>이름 바꾸기(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>내보내기(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>삭제(&amp;D)</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>프로필 이름:</translation>
    </message>
    <message>
        <source>Save profile</source>
        <translation>프로필 저장</translation>
    </message>
    <message>
        <source>Rename profile</source>
        <translation>프로필 이름 바꾸기</translation>
    </message>
    <message>
        <source>Delete the profile %1?</source>
        <translation>프로필 %1을(를) 삭제할까요?</translation>
    </message>
    <message>
        <source>Export profile</source>
        <translation>프로필 내보내기</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>프로필 (*.json)</translation>
    </message>
    <message>
        <source>Import profile</source>
        <translation>프로필 가져오기</translation>
    </message>
</context>
<context>
    <name>setup::ProfileShelf</name>
    <message>
        <source>%1 is for another mixer, %2.</source>
        <translation>%1은(는) 다른 믹서(%2)용입니다.</translation>
    </message>
    <message>
        <source>%1 loaded. Ctrl+Z takes it back.</source>
        <translation>%1을(를) 불러왔습니다. Ctrl+Z로 되돌립니다.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>%1(으)로 저장했습니다.</translation>
    </message>
    <message>
        <source>%1 is called %2 now.</source>
        <translation>%1의 이름이 이제 %2입니다.</translation>
    </message>
    <message>
        <source>%1 is deleted.</source>
        <translation>%1을(를) 삭제했습니다.</translation>
    </message>
    <message>
        <source>%1 is written to %2.</source>
        <translation>%1을(를) %2에 저장했습니다.</translation>
    </message>
    <message>
        <source>%1 is among your profiles now. Choose it in the menu to load it.</source>
        <translation>%1을(를) 프로필에 추가했습니다. 불러오려면 메뉴에서 선택하십시오.</translation>
    </message>
</context>
<context>
    <name>setup::SettingCard</name>
    <message>
        <source>%1: %2</source>
        <comment>setting: choice</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>how loud you record</source>
        <translation>녹음 크기</translation>
    </message>
    <message>
        <source>set by another program</source>
        <translation>다른 프로그램이 설정</translation>
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
        <translation>%1: %2(다른 프로그램이 설정)</translation>
    </message>
    <message>
        <source>Computer &amp;plays</source>
        <translation>컴퓨터 재생(&amp;P)</translation>
    </message>
    <message>
        <source>to this mixer channel</source>
        <translation>재생할 믹서 채널</translation>
    </message>
    <message>
        <source>Computer &amp;records</source>
        <translation>컴퓨터 녹음(&amp;R)</translation>
    </message>
    <message>
        <source>this signal of the mixer</source>
        <translation>녹음할 믹서 신호</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Send all settings again</source>
        <translation>모든 설정 다시 전송(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>다시 찾기(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Why is my mixer not found?</source>
        <translation>내 믹서를 찾지 못하는 이유(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;About and versions</source>
        <translation>정보 및 버전(&amp;A)</translation>
    </message>
    <message>
        <source>There is no session bus: changes made by other programs show up here a little later.</source>
        <translation>세션 버스가 없습니다. 다른 프로그램의 변경이 조금 늦게 나타납니다.</translation>
    </message>
    <message>
        <source>Play %1 here</source>
        <translation>여기서 %1 재생</translation>
    </message>
    <message>
        <source>Record on %1</source>
        <translation>%1에 녹음</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>자세히 보기(&amp;D)</translation>
    </message>
</context>
<context>
    <name>setup::SignalList</name>
    <message>
        <source>Unknown choice</source>
        <translation>알 수 없는 선택</translation>
    </message>
</context>
<context>
    <name>setup::TroubleCard</name>
    <message>
        <source>good</source>
        <translation>정상</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>문제</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>명령 복사(&amp;C)</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>자세히 보기(&amp;D)</translation>
    </message>
    <message>
        <source>The command is copied.</source>
        <translation>명령을 복사했습니다.</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept, and sent as soon as it is there.</source>
        <translation>믹서를 USB로 연결하고 전원을 켜십시오. 그동안 선택한 것은 저장되고, 믹서가 연결되면 바로 전송됩니다.</translation>
    </message>
</context>
<context>
    <name>setup::VersionsDialog</name>
    <message>
        <source>not installed</source>
        <translation>설치되지 않음</translation>
    </message>
    <message>
        <source>About and versions</source>
        <translation>정보 및 버전</translation>
    </message>
    <message>
        <source>TRX Setup</source>
        <translation>TRX Setup</translation>
    </message>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family. A choice is sent to every connected mixer at once and kept on this computer.</source>
        <translation>TRX-SELVA 제품군의 USB DJ 믹서를 설정합니다. 선택한 것은 연결된 모든 믹서로 바로 전송되고 이 컴퓨터에 저장됩니다.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>닫기(&amp;O)</translation>
    </message>
    <message>
        <source>This program</source>
        <translation>이 프로그램</translation>
    </message>
    <message>
        <source>Firmware of the mixer</source>
        <translation>믹서 펌웨어</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>패키지</translation>
    </message>
    <message>
        <source>Setup application</source>
        <translation>설정 프로그램</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>라이브러리</translation>
    </message>
</context>
</TS>
