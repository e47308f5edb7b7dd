<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>ListedNameNote</name>
    <message>
        <source>It will be listed without a name.</source>
        <translation>В списке имя не будет показано.</translation>
    </message>
    <message>
        <source>It will be listed as &quot;%1&quot;.</source>
        <translation>Имя в списке: «%1».</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Publishers</source>
        <translation>Системы тиражирования</translation>
    </message>
    <message>
        <source>The registered disc publishers and their status</source>
        <translation>Зарегистрированные системы тиражирования дисков и их состояние</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <translation>С&amp;ервис</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Панель инструментов</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Добавить…</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Удалить…</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>&amp;Свойства…</translation>
    </message>
    <message>
        <source>Common &amp;Setting for Publishing…</source>
        <translation>&amp;Общие параметры тиражирования…</translation>
    </message>
    <message>
        <source>Collect and Save Logs</source>
        <translation>Собрать и сохранить журналы</translation>
    </message>
    <message>
        <source>&amp;About Ulmar Disc Setup</source>
        <translation>&amp;О программе Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Start Ulmar Disc &amp;Monitor</source>
        <translation>&amp;Запустить Ulmar Disc Monitor</translation>
    </message>
</context>
<context>
    <name>PubSetup</name>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Log collection has finished.</source>
        <translation>Журналы собраны и сохранены.</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly.</source>
        <translation>Не удалось выполнить команду «tar». Убедитесь, что установка выполнена правильно.</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly. (%d)</source>
        <translation>Не удалось выполнить команду «tar». Убедитесь, что установка выполнена правильно. (%d)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Model name</source>
        <translation>Модель</translation>
    </message>
    <message>
        <source>Host Name</source>
        <translation>Имя хоста</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>Transmitting</source>
        <translation>Передача</translation>
    </message>
    <message>
        <source>Available Space</source>
        <translation>Свободно</translation>
    </message>
    <message>
        <source>The Publish Mode registered in the output device could not be obtained, so the previously displayed  value is displayed.
The displayed Publish Mode and stacker settings may be different from the values that are actually registered.</source>
        <translation>Не удалось получить режим тиражирования, заданный в устройстве вывода, поэтому показано последнее известное значение.
Показанные режим тиражирования и параметры лотков могут отличаться от фактически заданных.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Нет связи</translation>
    </message>
    <message>
        <source>Do you want to delete it?</source>
        <translation>Удалить этот элемент?</translation>
    </message>
    <message>
        <source>There are jobs in the output device, so it could not be deleted.
Please delete it after all jobs are finished.</source>
        <translation>В устройстве вывода есть задания, поэтому его не удалось удалить.
Удалите его после завершения всех заданий.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Не удалось изменить параметр.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup collects logs about CD/DVD/BD Publisher, and then saves them in local PC.
Refer to the documentation for what kind of information is collected.
ARVEN Ulmar Disc Setup does not send information.
Would you like to continue?</source>
        <translation>Программа ARVEN Ulmar Disc Setup собирает журналы систем тиражирования CD/DVD/BD и сохраняет их на этом компьютере.
О том, какие сведения собираются, см. в документации.
Программа ARVEN Ulmar Disc Setup не отправляет никаких сведений.
Продолжить?</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Сохранить как</translation>
    </message>
    <message>
        <source>Archive file to save (*.tgz)</source>
        <translation>Сохраняемый файл архива (*.tgz)</translation>
    </message>
    <message>
        <source>Administrator not registered</source>
        <translation>Администратор не зарегистрирован</translation>
    </message>
    <message>
        <source>Unsupported version</source>
        <translation>Версия не поддерживается</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>No publishers are registered. To add one, choose Add in the Edit menu.</source>
        <translation>Нет зарегистрированных систем тиражирования. Выберите «Добавить» в меню «Правка».</translation>
    </message>
    <message>
        <source>No publishers are registered.</source>
        <translation>Нет зарегистрированных систем тиражирования.</translation>
    </message>
</context>
<context>
    <name>StatusProgram</name>
    <message>
        <source>Stacker 4</source>
        <translation>Лоток 4</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Чернила</translation>
    </message>
    <message>
        <source>Prints left</source>
        <translation>Осталось отпечатков</translation>
    </message>
    <message>
        <source>No jobs</source>
        <translation>Заданий нет</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Задание</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Диски</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>С ошибкой</translation>
    </message>
    <message>
        <source>Time left</source>
        <translation>Осталось времени</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>ожидает</translation>
    </message>
    <message>
        <source>running</source>
        <translation>выполняется</translation>
    </message>
    <message>
        <source>canceling</source>
        <translation>отменяется</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>приостанавливается</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>приостановлено</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>останавливается</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>остановлено</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>отменено</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>завершено</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Голубой</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Пурпурный</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Жёлтый</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>Светло-голубой</translation>
    </message>
    <message>
        <source>Light magenta</source>
        <translation>Светло-пурпурный</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Чёрный</translation>
    </message>
    <message>
        <source>nearly empty</source>
        <translation>почти пуст</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>извлечён</translation>
    </message>
    <message>
        <source>not recognized</source>
        <translation>не распознан</translation>
    </message>
    <message>
        <source>not an original</source>
        <translation>не оригинальный</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>not full</source>
        <translation>не полон</translation>
    </message>
    <message>
        <source>too full</source>
        <translation>переполнен</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>бездействует</translation>
    </message>
    <message>
        <source>contains a disc</source>
        <translation>содержит диск</translation>
    </message>
    <message>
        <source>writing</source>
        <translation>запись</translation>
    </message>
    <message>
        <source>verifying</source>
        <translation>проверка</translation>
    </message>
    <message>
        <source>error</source>
        <translation>ошибка</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>не используется</translation>
    </message>
    <message>
        <source>conveying</source>
        <translation>перемещение</translation>
    </message>
    <message>
        <source>running a plug-in</source>
        <translation>выполняется плагин</translation>
    </message>
    <message>
        <source>measuring</source>
        <translation>измерение</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>чтение</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>печать</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>прочистка</translation>
    </message>
    <message>
        <source>drying</source>
        <translation>сушка</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>занят</translation>
    </message>
    <message>
        <source>Security mode</source>
        <translation>Режим безопасности</translation>
    </message>
    <message>
        <source>Output control mode</source>
        <translation>Режим управления выдачей</translation>
    </message>
    <message>
        <source>Error rate mode</source>
        <translation>Режим измерения ошибок</translation>
    </message>
    <message>
        <source>Read mode</source>
        <translation>Режим чтения</translation>
    </message>
    <message>
        <source>Input Stacker</source>
        <translation>Входной лоток</translation>
    </message>
    <message>
        <source>maintenance due soon</source>
        <translation>скоро потребуется обслуживание</translation>
    </message>
    <message>
        <source>ink pad nearly full</source>
        <translation>впитывающая прокладка почти заполнена</translation>
    </message>
    <message>
        <source>mechanical warning</source>
        <translation>предупреждение механизма</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>не в сети</translation>
    </message>
    <message>
        <source>ink pad full</source>
        <translation>впитывающая прокладка заполнена</translation>
    </message>
    <message>
        <source>maintenance required</source>
        <translation>требуется обслуживание</translation>
    </message>
    <message>
        <source>fatal error</source>
        <translation>критическая ошибка</translation>
    </message>
    <message>
        <source>disc cover open</source>
        <translation>крышка отсека дисков открыта</translation>
    </message>
    <message>
        <source>ink cover open</source>
        <translation>крышка чернил открыта</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>чернила закончились</translation>
    </message>
    <message>
        <source>maintenance box cover open</source>
        <translation>крышка ёмкости отработанных чернил открыта</translation>
    </message>
    <message>
        <source>maintenance box removed</source>
        <translation>ёмкость отработанных чернил снята</translation>
    </message>
    <message>
        <source>maintenance box full</source>
        <translation>ёмкость отработанных чернил заполнена</translation>
    </message>
    <message>
        <source>mechanical error</source>
        <translation>ошибка механизма</translation>
    </message>
    <message>
        <source>stacker 1 removed</source>
        <translation>лоток 1 снят</translation>
    </message>
    <message>
        <source>stacker 2 removed</source>
        <translation>лоток 2 снят</translation>
    </message>
    <message>
        <source>stacker 3 removed</source>
        <translation>лоток 3 снят</translation>
    </message>
    <message>
        <source>stacker 4 open</source>
        <translation>лоток 4 открыт</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>выключено</translation>
    </message>
    <message>
        <source>fatal printer error</source>
        <translation>критическая ошибка принтера</translation>
    </message>
    <message>
        <source>printer requires maintenance</source>
        <translation>принтер требует обслуживания</translation>
    </message>
    <message>
        <source>printer error</source>
        <translation>ошибка принтера</translation>
    </message>
    <message>
        <source>stacker 1 too full</source>
        <translation>лоток 1 переполнен</translation>
    </message>
    <message>
        <source>stacker 2 too full</source>
        <translation>лоток 2 переполнен</translation>
    </message>
    <message>
        <source>in operation</source>
        <translation>в работе</translation>
    </message>
    <message>
        <source>stacker 3 too full</source>
        <translation>лоток 3 переполнен</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>инициализация</translation>
    </message>
    <message>
        <source>recovering</source>
        <translation>восстановление</translation>
    </message>
    <message>
        <source>finalizing</source>
        <translation>завершение</translation>
    </message>
    <message>
        <source>initialization suspended</source>
        <translation>инициализация приостановлена</translation>
    </message>
    <message>
        <source>recovery suspended</source>
        <translation>восстановление приостановлено</translation>
    </message>
    <message>
        <source>disc pick error</source>
        <translation>ошибка захвата диска</translation>
    </message>
    <message>
        <source>under maintenance</source>
        <translation>на обслуживании</translation>
    </message>
    <message>
        <source>disc management error</source>
        <translation>ошибка управления дисками</translation>
    </message>
    <message>
        <source>fan error</source>
        <translation>ошибка вентилятора</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Нет ответа</translation>
    </message>
</context>
<context>
    <name>aboutDialog</name>
    <message>
        <source>About ARVEN Ulmar Disc Setup</source>
        <translation>О программе ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>Значок программы</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup for Linux</source>
        <translation>ARVEN Ulmar Disc Setup для Linux</translation>
    </message>
    <message>
        <source>Registers disc publishers, shows their status and changes their settings.</source>
        <translation>Регистрация, контроль состояния и настройка систем тиражирования дисков.</translation>
    </message>
</context>
<context>
    <name>addPublisherDialog</name>
    <message>
        <source>Register New CD/DVD/BD Publisher</source>
        <translation>Регистрация новой системы тиражирования CD/DVD/BD</translation>
    </message>
    <message>
        <source>Please specify the IP address or host name for the CD/DVD Publisher on the network you want to register.</source>
        <translation>Укажите IP-адрес или имя хоста сетевой системы тиражирования CD/DVD, которую требуется зарегистрировать.</translation>
    </message>
    <message>
        <source>Please type the name of a CD/DVD Publisher.</source>
        <translation>Введите имя для системы тиражирования CD/DVD.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>Это имя уже зарегистрировано.
Используйте другое имя.</translation>
    </message>
    <message>
        <source>The output device could not be found on the network.
There is a possibility that either the host name or IP address is wrong, or the output device is not connected to the network.</source>
        <translation>Не удалось найти устройство вывода в сети.
Возможно, имя хоста или IP-адрес указаны неверно либо устройство вывода не подключено к сети.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Не удалось изменить параметр.</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning1</name>
    <message>
        <source>Head Cleaning</source>
        <translation>Прочистка печатающей головки</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>Прочистка печатающей головки</translation>
    </message>
    <message>
        <source>Only clean the print head when faint areas or gaps appear in your printout, because cleaning consumes ink.
If there is not enough ink to perform a head cleaning, replace the ink cartridge first.</source>
        <translation>Выполняйте прочистку печатающей головки, только если на отпечатках появились бледные участки или пробелы, так как при прочистке расходуются чернила.
Если чернил недостаточно для прочистки, сначала замените чернильный картридж.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Начать</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning2</name>
    <message>
        <source>Head Cleaning</source>
        <translation>Прочистка печатающей головки</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>Прочистка печатающей головки</translation>
    </message>
    <message>
        <source>Cleaning takes a couple of minutes.  Cleaning is finished when the power light on the printer&apos;s control panel stops flashing. To check the effectiveness of the cleaning, click the Print Nozzle Check Pattern.</source>
        <translation>Прочистка занимает несколько минут. Она завершена, когда индикатор питания на панели управления принтера перестаёт мигать. Чтобы проверить результат прочистки, нажмите кнопку «Печать шаблона проверки».</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>Печать шаблона проверки</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Завершить</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck1</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Проверка дюз</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>Проверка дюз</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>Шаблон проверки дюз</translation>
    </message>
    <message>
        <source>Print a pattern in order to check that the print head nozzles are not blocked.

Check the cable connection and turn the device on. Be sure to set discs with an outside print diameter of 116 mm or more in Stacker 1.</source>
        <translation>Напечатайте шаблон, чтобы убедиться, что дюзы печатающей головки не засорены.

Проверьте подключение кабеля и включите устройство. Обязательно загрузите в лоток 1 диски с внешним диаметром области печати не менее 116&#xa0;мм.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Печать</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck2</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Проверка дюз</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>Проверка дюз</translation>
    </message>
    <message>
        <source>Pattern without missing segments</source>
        <translation>Шаблон без пропущенных сегментов</translation>
    </message>
    <message>
        <source>Pattern with missing segments</source>
        <translation>Шаблон с пропущенными сегментами</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>В норме</translation>
    </message>
    <message>
        <source>Cleaning needed</source>
        <translation>Требуется прочистка</translation>
    </message>
    <message>
        <source>Compare the printed pattern with the sample above. If any segments are missing in the printed pattern, click the Clean button. Otherwise, click the Finish button to quit.</source>
        <translation>Сравните напечатанный шаблон с образцами выше. Если в напечатанном шаблоне пропущены сегменты, нажмите кнопку «Прочистить». В противном случае нажмите кнопку «Завершить», чтобы закончить проверку.</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Прочистить</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Завершить</translation>
    </message>
</context>
<context>
    <name>propertyDialog</name>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>Имя хоста</translation>
    </message>
    <message>
        <source>Stacker Settings</source>
        <translation>Параметры лотков</translation>
    </message>
    <message>
        <source>Publish Mode</source>
        <translation>Режим тиражирования</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>Стандартный режим</translation>
    </message>
    <message>
        <source>External Output / Low-volume mode</source>
        <translation>Режим внешнего вывода / малого тиража</translation>
    </message>
    <message>
        <source>Batch mode</source>
        <translation>Пакетный режим</translation>
    </message>
    <message>
        <source>Stacker 1</source>
        <translation>Лоток 1</translation>
    </message>
    <message>
        <source>Stacker 2</source>
        <translation>Лоток 2</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>Выходной лоток</translation>
    </message>
    <message>
        <source>Stacker 3</source>
        <translation>Лоток 3</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Использовать</translation>
    </message>
    <message>
        <source>Do not use</source>
        <translation>Не использовать</translation>
    </message>
    <message>
        <source>Way of the discs</source>
        <translation>Путь дисков</translation>
    </message>
    <message>
        <source>Drive Settings</source>
        <translation>Параметры приводов</translation>
    </message>
    <message>
        <source>Drive to Use</source>
        <translation>Используемый привод</translation>
    </message>
    <message>
        <source>Use Both</source>
        <translation>Использовать оба</translation>
    </message>
    <message>
        <source>Use Drive 1 Only</source>
        <translation>Использовать только привод 1</translation>
    </message>
    <message>
        <source>Use Drive 2 Only</source>
        <translation>Использовать только привод 2</translation>
    </message>
    <message>
        <source>Number of write retries</source>
        <translation>Число повторных попыток записи</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Параметры принтера</translation>
    </message>
    <message>
        <source>Show &amp;error mark on discs that experience errors</source>
        <translation>Печатать метку &amp;ошибки на дисках с ошибками</translation>
    </message>
    <message>
        <source>Failure error mark</source>
        <translation>Метка ошибки</translation>
    </message>
    <message>
        <source>Printer Maintenance</source>
        <translation>Обслуживание принтера</translation>
    </message>
    <message>
        <source>Nozzle Check</source>
        <translation>Проверка дюз</translation>
    </message>
    <message>
        <source>Use this utility if gaps or faint areas appear in your printout.</source>
        <translation>Используйте эту функцию, если на отпечатках появились пробелы или бледные участки.</translation>
    </message>
    <message>
        <source>Head Cleaning</source>
        <translation>Прочистка печатающей головки</translation>
    </message>
    <message>
        <source>Use this utility if your print quality declines or the Nozzle Check indicates clogged nozzles.</source>
        <translation>Используйте эту функцию, если ухудшилось качество печати или проверка дюз показала, что дюзы засорены.</translation>
    </message>
    <message>
        <source>Maintenance Info</source>
        <translation>Сведения об обслуживании</translation>
    </message>
    <message>
        <source>Total discs published:</source>
        <translation>Всего изготовлено дисков:</translation>
    </message>
    <message>
        <source>[discs]</source>
        <translation>[шт.]</translation>
    </message>
    <message>
        <source>Number of printed discs:</source>
        <translation>Напечатано дисков:</translation>
    </message>
    <message>
        <source>Maintenance Box free space:</source>
        <translation>Свободно в ёмкости для отработанных чернил:</translation>
    </message>
    <message>
        <source>[%]</source>
        <translation>[%]</translation>
    </message>
    <message>
        <source>Service life of Drive 1:</source>
        <translation>Израсходованный ресурс привода 1:</translation>
    </message>
    <message>
        <source>Service life of Drive 2:</source>
        <translation>Израсходованный ресурс привода 2:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Об устройстве</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Серийный номер:</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>Сведения о версиях</translation>
    </message>
    <message>
        <source>Autoloader:</source>
        <translation>Автозагрузчик:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Принтер:</translation>
    </message>
    <message>
        <source>Drive 1:</source>
        <translation>Привод 1:</translation>
    </message>
    <message>
        <source>Drive 2:</source>
        <translation>Привод 2:</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Сервер:</translation>
    </message>
    <message>
        <source>Ulmar Disc Net Administrator:</source>
        <translation>Ulmar Disc Net Administrator:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>При&amp;менить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>propertyDialogEx</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Проверка дюз</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Прочистка печатающей головки</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Печатать</translation>
    </message>
    <message>
        <source>Do not print</source>
        <translation>Не печатать</translation>
    </message>
    <message>
        <source>Service life of Drive:</source>
        <translation>Израсходованный ресурс привода:</translation>
    </message>
    <message>
        <source>Drive:</source>
        <translation>Привод:</translation>
    </message>
    <message>
        <source>Properties - </source>
        <translation>Свойства — </translation>
    </message>
    <message>
        <source>Please type a name for the output device.</source>
        <translation>Введите имя для устройства вывода.</translation>
    </message>
    <message>
        <source>&quot;\&quot; cannot be used in the output device name.</source>
        <translation>Символ «\» нельзя использовать в имени устройства вывода.</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>Это имя уже зарегистрировано.
Используйте другое имя.</translation>
    </message>
    <message>
        <source>The settings could not be changed because registration of the Publish Mode in the output device settings failed.
Please change the settings after checking the power supply of the output device and the connection.</source>
        <translation>Изменить параметры не удалось из-за ошибки при сохранении режима тиражирования в устройстве вывода.
Проверьте питание и подключение устройства вывода, а затем измените параметры.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Не удалось изменить параметр.</translation>
    </message>
    <message>
        <source>This output device is processing jobs and the settings could not be changed.
Please change it after all jobs are completed.</source>
        <translation>Устройство вывода обрабатывает задания, поэтому изменить параметры не удалось.
Измените их после завершения всех заданий.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>Выходной лоток</translation>
    </message>
</context>
<context>
    <name>settingDialog</name>
    <message>
        <source>Common Setting for Publishing</source>
        <translation>Общие параметры тиражирования</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Working Folder</source>
        <translation>Рабочая папка</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Обзор…</translation>
    </message>
    <message>
        <source>Notification Settings</source>
        <translation>Уведомления</translation>
    </message>
    <message>
        <source>Notification Method</source>
        <translation>Способ уведомления</translation>
    </message>
    <message>
        <source>Beep when a job is finished, or when the source stacker is empty (RT-300III)</source>
        <translation>Звуковой сигнал, когда задание завершено или пуст входной лоток (RT-300III)</translation>
    </message>
    <message>
        <source>Notification when a job is finished</source>
        <translation>Уведомление о завершении задания</translation>
    </message>
    <message>
        <source>Notify after each job is finished</source>
        <translation>Уведомлять после завершения каждого задания</translation>
    </message>
    <message>
        <source>Notify after all jobs are finished</source>
        <translation>Уведомлять после завершения всех заданий</translation>
    </message>
    <message>
        <source>Network CD/DVD/BD Publisher</source>
        <translation>Сетевая система тиражирования CD/DVD/BD</translation>
    </message>
    <message>
        <source>Compatibility Approval Settings</source>
        <translation>Разрешение совместимости</translation>
    </message>
    <message>
        <source>Allow security risks and approve the use of older versions of network CD/DVD/BD publishers</source>
        <translation>Разрешить старые версии сетевых систем тиражирования CD/DVD/BD (небезопасно)</translation>
    </message>
    <message>
        <source>When this is selected, you can use the following devices.</source>
        <translation>Если этот флажок установлен, можно использовать следующие устройства.</translation>
    </message>
    <message>
        <source>RT-300NII:</source>
        <translation>RT-300NII:</translation>
    </message>
    <message>
        <source>Server versions older than 3.30</source>
        <translation>Версии сервера ниже 3.30</translation>
    </message>
    <message>
        <source>It is strongly recommended that you upgrade to the latest software version to handle vulnerabilities.</source>
        <translation>Чтобы устранить уязвимости, настоятельно рекомендуется обновить программное обеспечение до последней версии.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>При&amp;менить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>settingDialogEx</name>
    <message>
        <source>Select working folder.</source>
        <translation>Выбор рабочей папки</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The working folder could not be changed because there is a job being processed on this computer.
Please change the working folder after all jobs are finished.</source>
        <translation>Не удалось изменить рабочую папку, так как на этом компьютере обрабатывается задание.
Измените рабочую папку после завершения всех заданий.</translation>
    </message>
    <message>
        <source>The specified folder cannot be set as the working folder.
Specify a different folder.</source>
        <translation>Указанную папку нельзя назначить рабочей.
Укажите другую папку.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Не удалось изменить параметр.</translation>
    </message>
</context>
</TS>
