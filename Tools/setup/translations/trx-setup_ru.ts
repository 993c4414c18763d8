<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>CheckWords</name>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 in good order</source>
        <translation>в порядке: %1</translation>
    </message>
    <message>
        <source>%1 without effect</source>
        <translation>без действия: %1</translation>
    </message>
    <message>
        <source>nothing stored yet</source>
        <translation>пока ничего не сохранено</translation>
    </message>
    <message>
        <source>1 USB device seen</source>
        <translation>найдено 1 устройство USB</translation>
    </message>
    <message>
        <source>%1 USB devices seen</source>
        <translation>найдено устройств USB: %1</translation>
    </message>
    <message>
        <source>no other product of the maker is connected</source>
        <translation>других изделий производителя не подключено</translation>
    </message>
    <message>
        <source>also connected: %1</source>
        <translation>также подключено: %1</translation>
    </message>
    <message>
        <source>a mixer is connected</source>
        <translation>микшер подключён</translation>
    </message>
    <message>
        <source>found: %1</source>
        <translation>найдено: %1</translation>
    </message>
    <message>
        <source>%1 may be opened</source>
        <translation>%1 можно открыть</translation>
    </message>
    <message>
        <source>every mixer that may be opened answers</source>
        <translation>все микшеры, которые можно открыть, отвечают</translation>
    </message>
    <message>
        <source>reached</source>
        <translation>доступна</translation>
    </message>
    <message>
        <source>library %1, package %2</source>
        <translation>библиотека %1, пакет %2</translation>
    </message>
    <message>
        <source>You may not open the mixer</source>
        <translation>Вам нельзя открыть микшер</translation>
    </message>
    <message>
        <source>It is connected, but this computer lets only administrators use it. Let an administrator run the command below once, then plug the mixer in again.</source>
        <translation>Он подключён, но на этом компьютере им могут пользоваться только администраторы. Попросите администратора один раз выполнить команду ниже, затем подключите микшер заново.</translation>
    </message>
    <message>
        <source>Your settings cannot be kept</source>
        <translation>Не удаётся сохранить ваши настройки</translation>
    </message>
    <message>
        <source>The disk is full. Delete files that you do not need.</source>
        <translation>Диск заполнен. Удалите ненужные файлы.</translation>
    </message>
    <message>
        <source>The disk can only be read. Let an administrator change that.</source>
        <translation>Диск доступен только для чтения. Попросите администратора это изменить.</translation>
    </message>
    <message>
        <source>A file is in the place of the folder %1. Move it elsewhere.</source>
        <translation>На месте папки %1 находится файл. Переместите его.</translation>
    </message>
    <message>
        <source>The folder %1 is not writable. Give yourself the right to write to it.</source>
        <translation>В папку %1 нельзя писать. Дайте себе право на запись.</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>Не удаётся прочитать ваши настройки</translation>
    </message>
    <message>
        <source>%1 holds no settings. Remove it.</source>
        <translation>В %1 нет настроек. Удалите его.</translation>
    </message>
    <message>
        <source>%1 is no file. Remove it.</source>
        <translation>%1 не файл. Удалите его.</translation>
    </message>
    <message>
        <source>A stored setting is no choice</source>
        <translation>Одна из сохранённых настроек неверна</translation>
    </message>
    <message>
        <source>%1 is stored with a number that no choice has. Choose it anew.</source>
        <translation>%1: сохранён номер, которого нет среди вариантов. Выберите заново.</translation>
    </message>
    <message>
        <source>Earlier settings were set aside</source>
        <translation>Прежние настройки отложены</translation>
    </message>
    <message>
        <source>They could not be read, and are kept in %1. Remove that file if you do not need it.</source>
        <translation>Их не удалось прочитать, они хранятся в %1. Удалите этот файл, если он не нужен.</translation>
    </message>
    <message>
        <source>%1 cannot be read. Give yourself the right to read it, or remove it.</source>
        <translation>Не удаётся прочитать %1. Дайте себе право на чтение или удалите файл.</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Other products</source>
        <translation>Другие изделия</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Микшер</translation>
    </message>
    <message>
        <source>Device file</source>
        <translation>Файл устройства</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>Разрешение</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Ответ</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Сеансовая шина</translation>
    </message>
    <message>
        <source>Settings folder</source>
        <translation>Папка настроек</translation>
    </message>
    <message>
        <source>Settings files</source>
        <translation>Файлы настроек</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Установка</translation>
    </message>
    <message>
        <source>no USB device seen</source>
        <translation>устройств USB не найдено</translation>
    </message>
    <message>
        <source>but no mixer</source>
        <translation>но микшера нет</translation>
    </message>
    <message>
        <source>You may not open it</source>
        <translation>Вам нельзя его открыть</translation>
    </message>
    <message>
        <source>This computer shows no USB at all</source>
        <translation>На этом компьютере не видно USB</translation>
    </message>
    <message>
        <source>Is this a virtual machine or a container? It needs a USB controller.</source>
        <translation>Это виртуальная машина или контейнер? Нужен контроллер USB.</translation>
    </message>
    <message>
        <source>This product has no settings here</source>
        <translation>У этого изделия здесь нет настроек</translation>
    </message>
    <message>
        <source>%1 is connected. It is not a mixer that this program can set. Connect a mixer of the TRX-SELVA family.</source>
        <translation>Подключено: %1. Эта программа не может его настроить. Подключите микшер семейства TRX-SELVA.</translation>
    </message>
    <message>
        <source>No mixer found</source>
        <translation>Микшер не найден</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept.</source>
        <translation>Подключите микшер по USB и включите его. То, что вы пока выберете, сохранится.</translation>
    </message>
    <message>
        <source>The mixer cannot be opened</source>
        <translation>Не удаётся открыть микшер</translation>
    </message>
    <message>
        <source>The file %1 is missing. Plug the mixer out and in again.</source>
        <translation>Нет файла %1. Отключите микшер и подключите снова.</translation>
    </message>
    <message>
        <source>Another program holds the mixer</source>
        <translation>Микшер занят другой программой</translation>
    </message>
    <message>
        <source>Only one program at a time may use it so. End that program. The command below names it.</source>
        <translation>Так им может пользоваться только одна программа. Закройте другую программу. Команда ниже назовёт её.</translation>
    </message>
    <message>
        <source>Plug it out and in again. The system says: %1.</source>
        <translation>Отключите его и подключите снова. Система сообщает: %1.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 не отвечает</translation>
    </message>
    <message>
        <source>Switch it off and on again, and connect it without a hub. Your settings are kept.</source>
        <translation>Выключите его и включите снова, подключите без разветвителя. Ваши настройки сохранены.</translation>
    </message>
    <message>
        <source>There is no session bus</source>
        <translation>Сеансовой шины нет</translation>
    </message>
    <message>
        <source>Changes made by other programs show up a little later. Log out and in again.</source>
        <translation>Изменения из других программ появятся чуть позже. Выйдите из системы и войдите снова.</translation>
    </message>
    <message>
        <source>This user has no home folder.</source>
        <translation>У этого пользователя нет домашней папки.</translation>
    </message>
    <message>
        <source>The installation is not complete</source>
        <translation>Установка неполная</translation>
    </message>
    <message>
        <source>Files with versions are missing. Install the package again.</source>
        <translation>Нет файлов с версиями. Установите пакет заново.</translation>
    </message>
    <message>
        <source>turned off</source>
        <translation>выключено</translation>
    </message>
    <message>
        <source>on</source>
        <translation>включено</translation>
    </message>
    <message>
        <source>At plug-in</source>
        <translation>При подключении</translation>
    </message>
    <message>
        <source>Settings cannot be sent to a mixer that is plugged in</source>
        <translation>Настройки нельзя отправить на подключаемый микшер</translation>
    </message>
</context>
<context>
    <name>HeaderWords</name>
    <message>
        <source>No mixer</source>
        <translation>Микшера нет</translation>
    </message>
    <message>
        <source>%1 mixers  ·  %2</source>
        <translation>Микшеров: %1  ·  %2</translation>
    </message>
    <message>
        <source>Looking for one on USB</source>
        <translation>Поиск на портах USB</translation>
    </message>
    <message>
        <source>Connected, but cannot be opened</source>
        <translation>Подключён, но не открывается</translation>
    </message>
    <message>
        <source>Does not answer: %1</source>
        <translation>Не отвечает: %1</translation>
    </message>
    <message>
        <source>Connected, but does not answer</source>
        <translation>Подключён, но не отвечает</translation>
    </message>
    <message>
        <source>Cannot be opened: %1</source>
        <translation>Не открывается: %1</translation>
    </message>
    <message>
        <source>Every setting goes to all of them: %1</source>
        <translation>Каждая настройка отправляется всем: %1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Подключён</translation>
    </message>
    <message>
        <source>Serial number %1</source>
        <translation>Серийный номер %1</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>Прошивка %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family.</source>
        <translation>Настраивает USB-микшеры для диджеев семейства TRX-SELVA.</translation>
    </message>
    <message>
        <source>Show this model while no mixer is connected.</source>
        <translation>Показывать эту модель, пока микшер не подключён.</translation>
    </message>
    <message>
        <source>Use light, dark, light-contrast or dark-contrast colours, whatever the desktop uses.</source>
        <translation>Использовать цвета light, dark, light-contrast или dark-contrast независимо от рабочего стола.</translation>
    </message>
</context>
<context>
    <name>ProfileFaultWords</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>Профилю нужно имя.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Это имя слишком длинное.</translation>
    </message>
    <message>
        <source>This name has characters that a name cannot have.</source>
        <translation>В этом имени есть недопустимые символы.</translation>
    </message>
    <message>
        <source>This user has no home folder to keep profiles in.</source>
        <translation>У этого пользователя нет домашней папки для профилей.</translation>
    </message>
    <message>
        <source>There is no profile %1 any more.</source>
        <translation>Профиля %1 больше нет.</translation>
    </message>
    <message>
        <source>There is a profile %1 already.</source>
        <translation>Профиль %1 уже есть.</translation>
    </message>
    <message>
        <source>There is a file %1 already.</source>
        <translation>Файл %1 уже есть.</translation>
    </message>
    <message>
        <source>The file is named for another profile, %1. Import it.</source>
        <translation>Файл назван именем другого профиля, %1. Импортируйте его.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Не удаётся прочитать %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Не удаётся записать %1: %2.</translation>
    </message>
    <message>
        <source>%1 is set to an unknown choice. Choose it anew first.</source>
        <translation>%1: значение неизвестно. Сначала выберите заново.</translation>
    </message>
    <message>
        <source>This profile is from a newer version of this program.</source>
        <translation>Этот профиль создан более новой версией программы.</translation>
    </message>
    <message>
        <source>This profile is for a mixer that is not known here: %1.</source>
        <translation>Этот профиль для микшера, который здесь неизвестен: %1.</translation>
    </message>
    <message>
        <source>The mixer has no choice &quot;%1&quot;.</source>
        <translation>У микшера нет варианта «%1».</translation>
    </message>
    <message>
        <source>This profile holds something that the mixer does not have: %1.</source>
        <translation>В этом профиле есть то, чего нет у микшера: %1.</translation>
    </message>
    <message>
        <source>This profile holds no settings.</source>
        <translation>В этом профиле нет настроек.</translation>
    </message>
    <message>
        <source>This file is no profile.</source>
        <translation>Этот файл не профиль.</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1 refused it.</source>
        <translation>%1: отказ.</translation>
    </message>
    <message>
        <source>%1 did not answer.</source>
        <translation>%1: нет ответа.</translation>
    </message>
    <message>
        <source>%1 was unplugged.</source>
        <translation>%1: отключён.</translation>
    </message>
    <message>
        <source>%1 may not be opened.</source>
        <translation>%1: нет права открыть.</translation>
    </message>
    <message>
        <source>Another program holds %1.</source>
        <translation>%1: занят другой программой.</translation>
    </message>
    <message>
        <source>%1 did not take it.</source>
        <translation>%1: не принято.</translation>
    </message>
    <message>
        <source>Kept. No mixer is connected.</source>
        <translation>Сохранено. Микшер не подключён.</translation>
    </message>
    <message>
        <source>Kept, but not sent:</source>
        <translation>Сохранено, но не отправлено:</translation>
    </message>
    <message>
        <source>Sent to %1.</source>
        <translation>Отправлено: %1.</translation>
    </message>
    <message>
        <source>Sent to one mixer.</source>
        <translation>Отправлено на микшер.</translation>
    </message>
    <message>
        <source>Sent to %1 mixers.</source>
        <translation>Отправлено на микшеры: %1.</translation>
    </message>
    <message>
        <source>USB %1</source>
        <translation>USB %1</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 записывает</translation>
    </message>
    <message>
        <source>%1 plays to</source>
        <translation>%1 играет на</translation>
    </message>
    <message>
        <source>Boost level</source>
        <translation>Уровень усиления</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>Канал MIDI</translation>
    </message>
    <message>
        <source>Unknown choice</source>
        <translation>Неизвестный вариант</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Sending to %1 mixers …</source>
        <translation>Отправка на микшеры (%1) …</translation>
    </message>
    <message>
        <source>Sending …</source>
        <translation>Отправка …</translation>
    </message>
    <message>
        <source>The mixer settings refused this choice.</source>
        <translation>Этот выбор не принят.</translation>
    </message>
    <message>
        <source>Sent, but this computer could not keep it.</source>
        <translation>Отправлено, но компьютер не смог это сохранить.</translation>
    </message>
    <message>
        <source>This computer could not keep the choice.</source>
        <translation>Компьютер не смог сохранить выбор.</translation>
    </message>
    <message>
        <source>No mixer is connected.</source>
        <translation>Микшер не подключён.</translation>
    </message>
    <message>
        <source>Not all settings were sent:</source>
        <translation>Отправлены не все настройки:</translation>
    </message>
    <message>
        <source>All settings were sent.</source>
        <translation>Все настройки отправлены.</translation>
    </message>
    <message>
        <source>Sent all but these; choose them anew: %1.</source>
        <translation>Отправлено всё, кроме этого; выберите заново: %1.</translation>
    </message>
    <message>
        <source>This could not be changed: %1.</source>
        <translation>Не удалось изменить: %1.</translation>
    </message>
    <message>
        <source>A mixer was plugged in: %1</source>
        <translation>Подключён микшер: %1</translation>
    </message>
    <message>
        <source>The input selector of CH%1 is not on USB</source>
        <translation>Селектор входа CH%1 не стоит на USB</translation>
    </message>
    <message>
        <source>The signal of the mixer that the computer records on %1.</source>
        <translation>Сигнал микшера, который компьютер записывает на %1.</translation>
    </message>
    <message>
        <source>The mixer channel that the computer plays %1 to.</source>
        <translation>Канал микшера, на котором компьютер воспроизводит %1.</translation>
    </message>
    <message>
        <source>How loud you record.</source>
        <translation>Громкость записи.</translation>
    </message>
    <message>
        <source>The MIDI channel that the mixer uses.</source>
        <translation>MIDI-канал, который использует микшер.</translation>
    </message>
    <message>
        <source>Not possible in this session.</source>
        <translation>В этом сеансе невозможно.</translation>
    </message>
    <message>
        <source>Turned off by an administrator.</source>
        <translation>Выключено администратором.</translation>
    </message>
    <message>
        <source>Install the package trxctl for this.</source>
        <translation>Для этого установите пакет trxctl.</translation>
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
        <translation>&amp;Проверить снова</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>What was checked</source>
        <translation>Что проверено</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>Looking …</source>
        <translation>Проверка …</translation>
    </message>
</context>
<context>
    <name>setup::Header</name>
    <message>
        <source>Pro&amp;files</source>
        <translation>Про&amp;фили</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Профили</translation>
    </message>
    <message>
        <source>Profiles: %1</source>
        <translation>Профили: %1</translation>
    </message>
</context>
<context>
    <name>setup::PluggedInCard</name>
    <message>
        <source>When a mixer is plugged in</source>
        <translation>При подключении</translation>
    </message>
    <message>
        <source>&amp;Send my settings to it</source>
        <translation>&amp;Слать настройки</translation>
    </message>
</context>
<context>
    <name>setup::ProfileMenu</name>
    <message>
        <source>There is a profile %1 already. Replace it?</source>
        <translation>Профиль %1 уже есть. Заменить?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Заменить</translation>
    </message>
    <message>
        <source>No profiles yet</source>
        <translation>Профилей пока нет</translation>
    </message>
    <message>
        <source>&amp;Save as …</source>
        <translation>&amp;Сохранить как …</translation>
    </message>
    <message>
        <source>&amp;Import …</source>
        <translation>&amp;Импорт …</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Переименовать</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Экспорт</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Имя профиля:</translation>
    </message>
    <message>
        <source>Save profile</source>
        <translation>Сохранение профиля</translation>
    </message>
    <message>
        <source>Rename profile</source>
        <translation>Переименование профиля</translation>
    </message>
    <message>
        <source>Delete the profile %1?</source>
        <translation>Удалить профиль %1?</translation>
    </message>
    <message>
        <source>Export profile</source>
        <translation>Экспорт профиля</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Профили (*.json)</translation>
    </message>
    <message>
        <source>Import profile</source>
        <translation>Импорт профиля</translation>
    </message>
</context>
<context>
    <name>setup::ProfileShelf</name>
    <message>
        <source>%1 is for another mixer, %2.</source>
        <translation>%1 для другого микшера, %2.</translation>
    </message>
    <message>
        <source>%1 loaded. Ctrl+Z takes it back.</source>
        <translation>%1 загружен. Ctrl+Z отменит это.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Сохранено как %1.</translation>
    </message>
    <message>
        <source>%1 is called %2 now.</source>
        <translation>%1 теперь называется %2.</translation>
    </message>
    <message>
        <source>%1 is deleted.</source>
        <translation>%1 удалён.</translation>
    </message>
    <message>
        <source>%1 is written to %2.</source>
        <translation>%1 записан в %2.</translation>
    </message>
    <message>
        <source>%1 is among your profiles now. Choose it in the menu to load it.</source>
        <translation>%1 теперь среди ваших профилей. Чтобы загрузить, выберите его в меню.</translation>
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
        <translation>громкость записи</translation>
    </message>
    <message>
        <source>set by another program</source>
        <translation>из другой программы</translation>
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
        <translation>%1: %2 (из другой программы)</translation>
    </message>
    <message>
        <source>Computer &amp;plays</source>
        <translation>Компьютер &amp;играет</translation>
    </message>
    <message>
        <source>to this mixer channel</source>
        <translation>на этот канал микшера</translation>
    </message>
    <message>
        <source>Computer &amp;records</source>
        <translation>Компьютер &amp;записывает</translation>
    </message>
    <message>
        <source>this signal of the mixer</source>
        <translation>этот сигнал микшера</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Send all settings again</source>
        <translation>От&amp;править все настройки снова</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Искать снова</translation>
    </message>
    <message>
        <source>&amp;Why is my mixer not found?</source>
        <translation>По&amp;чему мой микшер не найден?</translation>
    </message>
    <message>
        <source>&amp;About and versions</source>
        <translation>О программе и &amp;версии</translation>
    </message>
    <message>
        <source>There is no session bus: changes made by other programs show up here a little later.</source>
        <translation>Сеансовой шины нет: изменения из других программ появляются здесь чуть позже.</translation>
    </message>
    <message>
        <source>Play %1 here</source>
        <translation>Играть %1 сюда</translation>
    </message>
    <message>
        <source>Record on %1</source>
        <translation>Записывать на %1</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>По&amp;дробности</translation>
    </message>
</context>
<context>
    <name>setup::SignalList</name>
    <message>
        <source>Unknown choice</source>
        <translation>Неизвестный вариант</translation>
    </message>
</context>
<context>
    <name>setup::TroubleCard</name>
    <message>
        <source>good</source>
        <translation>в порядке</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>проблема</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>&amp;Копировать команду</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>По&amp;дробности</translation>
    </message>
    <message>
        <source>The command is copied.</source>
        <translation>Команда скопирована.</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept, and sent as soon as it is there.</source>
        <translation>Подключите микшер по USB и включите его. То, что вы пока выберете, сохранится и будет отправлено, как только он появится.</translation>
    </message>
</context>
<context>
    <name>setup::VersionsDialog</name>
    <message>
        <source>not installed</source>
        <translation>не установлено</translation>
    </message>
    <message>
        <source>About and versions</source>
        <translation>О программе и версии</translation>
    </message>
    <message>
        <source>TRX Setup</source>
        <translation>TRX Setup</translation>
    </message>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family. A choice is sent to every connected mixer at once and kept on this computer.</source>
        <translation>Настраивает USB-микшеры для диджеев семейства TRX-SELVA. Выбор сразу отправляется на все подключённые микшеры и сохраняется на этом компьютере.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>This program</source>
        <translation>Эта программа</translation>
    </message>
    <message>
        <source>Firmware of the mixer</source>
        <translation>Прошивка микшера</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Пакет</translation>
    </message>
    <message>
        <source>Setup application</source>
        <translation>Программа настройки</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Библиотека</translation>
    </message>
</context>
</TS>
