<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>ListedNameNote</name>
    <message>
        <source>It will be listed without a name.</source>
        <translation>清單中將不顯示名稱。</translation>
    </message>
    <message>
        <source>It will be listed as &quot;%1&quot;.</source>
        <translation>清單中將顯示為「%1」。</translation>
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
        <translation>光碟發行機</translation>
    </message>
    <message>
        <source>The registered disc publishers and their status</source>
        <translation>已註冊的光碟發行機及其狀態</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編輯(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>說明(&amp;H)</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>工具列</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>結束(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>新增(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>刪除(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>內容(&amp;P)...</translation>
    </message>
    <message>
        <source>Common &amp;Setting for Publishing…</source>
        <translation>光碟發行的共用設定(&amp;S)...</translation>
    </message>
    <message>
        <source>Collect and Save Logs</source>
        <translation>收集並儲存記錄檔</translation>
    </message>
    <message>
        <source>&amp;About Ulmar Disc Setup</source>
        <translation>關於 Ulmar Disc Setup(&amp;A)</translation>
    </message>
    <message>
        <source>Start Ulmar Disc &amp;Monitor</source>
        <translation>啟動 Ulmar Disc Monitor(&amp;M)</translation>
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
        <translation>記錄檔收集已完成。</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly.</source>
        <translation>無法執行 tar 指令。請檢查是否已正確安裝。</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly. (%d)</source>
        <translation>無法執行 tar 指令。請檢查是否已正確安裝。(%d)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Model name</source>
        <translation>機型</translation>
    </message>
    <message>
        <source>Host Name</source>
        <translation>主機名稱</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Transmitting</source>
        <translation>傳輸中</translation>
    </message>
    <message>
        <source>Available Space</source>
        <translation>可用空間</translation>
    </message>
    <message>
        <source>The Publish Mode registered in the output device could not be obtained, so the previously displayed  value is displayed.
The displayed Publish Mode and stacker settings may be different from the values that are actually registered.</source>
        <translation>無法取得輸出裝置中註冊的發行模式，因此顯示上次顯示的值。
顯示的發行模式和光碟匣設定可能與實際註冊的值不同。</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未連線</translation>
    </message>
    <message>
        <source>Do you want to delete it?</source>
        <translation>確定要刪除嗎？</translation>
    </message>
    <message>
        <source>There are jobs in the output device, so it could not be deleted.
Please delete it after all jobs are finished.</source>
        <translation>輸出裝置中有工作，因此無法刪除。
請在所有工作完成後再刪除。</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>無法變更設定。</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup collects logs about CD/DVD/BD Publisher, and then saves them in local PC.
Refer to the documentation for what kind of information is collected.
ARVEN Ulmar Disc Setup does not send information.
Would you like to continue?</source>
        <translation>ARVEN Ulmar Disc Setup 會收集 CD/DVD/BD 發行機的相關記錄檔，並儲存到這部電腦。
關於會收集哪些資訊，請參閱說明文件。
ARVEN Ulmar Disc Setup 不會傳送任何資訊。
要繼續嗎？</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>另存新檔</translation>
    </message>
    <message>
        <source>Archive file to save (*.tgz)</source>
        <translation>要儲存的封存檔 (*.tgz)</translation>
    </message>
    <message>
        <source>Administrator not registered</source>
        <translation>管理員未註冊</translation>
    </message>
    <message>
        <source>Unsupported version</source>
        <translation>不支援的版本</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就緒</translation>
    </message>
    <message>
        <source>No publishers are registered. To add one, choose Add in the Edit menu.</source>
        <translation>沒有已註冊的光碟發行機。若要新增，請在「編輯」功能表中選擇「新增」。</translation>
    </message>
    <message>
        <source>No publishers are registered.</source>
        <translation>沒有已註冊的光碟發行機。</translation>
    </message>
</context>
<context>
    <name>StatusProgram</name>
    <message>
        <source>Stacker 4</source>
        <translation>光碟匣 4</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>墨水</translation>
    </message>
    <message>
        <source>Prints left</source>
        <translation>剩餘列印數</translation>
    </message>
    <message>
        <source>No jobs</source>
        <translation>沒有工作</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>工作</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>光碟</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Time left</source>
        <translation>剩餘時間</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>running</source>
        <translation>執行中</translation>
    </message>
    <message>
        <source>canceling</source>
        <translation>正在取消</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>正在暫停</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>正在停止</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>青色</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>洋紅色</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黃色</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>淺青色</translation>
    </message>
    <message>
        <source>Light magenta</source>
        <translation>淺洋紅色</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>nearly empty</source>
        <translation>即將用盡</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>已取出</translation>
    </message>
    <message>
        <source>not recognized</source>
        <translation>無法辨識</translation>
    </message>
    <message>
        <source>not an original</source>
        <translation>非原廠</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>not full</source>
        <translation>未滿</translation>
    </message>
    <message>
        <source>too full</source>
        <translation>過滿</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>閒置</translation>
    </message>
    <message>
        <source>contains a disc</source>
        <translation>內有光碟</translation>
    </message>
    <message>
        <source>writing</source>
        <translation>正在寫入</translation>
    </message>
    <message>
        <source>verifying</source>
        <translation>正在驗證</translation>
    </message>
    <message>
        <source>error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>conveying</source>
        <translation>正在傳送</translation>
    </message>
    <message>
        <source>running a plug-in</source>
        <translation>正在執行外掛程式</translation>
    </message>
    <message>
        <source>measuring</source>
        <translation>正在測量</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>正在讀取</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>正在列印</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>正在清潔</translation>
    </message>
    <message>
        <source>drying</source>
        <translation>正在乾燥</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>忙碌</translation>
    </message>
    <message>
        <source>Security mode</source>
        <translation>安全模式</translation>
    </message>
    <message>
        <source>Output control mode</source>
        <translation>輸出控制模式</translation>
    </message>
    <message>
        <source>Error rate mode</source>
        <translation>錯誤率模式</translation>
    </message>
    <message>
        <source>Read mode</source>
        <translation>讀取模式</translation>
    </message>
    <message>
        <source>Input Stacker</source>
        <translation>供片光碟匣</translation>
    </message>
    <message>
        <source>maintenance due soon</source>
        <translation>即將需要維護</translation>
    </message>
    <message>
        <source>ink pad nearly full</source>
        <translation>廢墨墊即將滿</translation>
    </message>
    <message>
        <source>mechanical warning</source>
        <translation>機械警告</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>離線</translation>
    </message>
    <message>
        <source>ink pad full</source>
        <translation>廢墨墊已滿</translation>
    </message>
    <message>
        <source>maintenance required</source>
        <translation>需要維護</translation>
    </message>
    <message>
        <source>fatal error</source>
        <translation>嚴重錯誤</translation>
    </message>
    <message>
        <source>disc cover open</source>
        <translation>光碟蓋已開啟</translation>
    </message>
    <message>
        <source>ink cover open</source>
        <translation>墨水蓋已開啟</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>墨水用盡</translation>
    </message>
    <message>
        <source>maintenance box cover open</source>
        <translation>維護盒蓋已開啟</translation>
    </message>
    <message>
        <source>maintenance box removed</source>
        <translation>維護盒已取下</translation>
    </message>
    <message>
        <source>maintenance box full</source>
        <translation>維護盒已滿</translation>
    </message>
    <message>
        <source>mechanical error</source>
        <translation>機械錯誤</translation>
    </message>
    <message>
        <source>stacker 1 removed</source>
        <translation>光碟匣 1 已取下</translation>
    </message>
    <message>
        <source>stacker 2 removed</source>
        <translation>光碟匣 2 已取下</translation>
    </message>
    <message>
        <source>stacker 3 removed</source>
        <translation>光碟匣 3 已取下</translation>
    </message>
    <message>
        <source>stacker 4 open</source>
        <translation>光碟匣 4 已開啟</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>已關機</translation>
    </message>
    <message>
        <source>fatal printer error</source>
        <translation>印表機嚴重錯誤</translation>
    </message>
    <message>
        <source>printer requires maintenance</source>
        <translation>印表機需要維護</translation>
    </message>
    <message>
        <source>printer error</source>
        <translation>印表機錯誤</translation>
    </message>
    <message>
        <source>stacker 1 too full</source>
        <translation>光碟匣 1 過滿</translation>
    </message>
    <message>
        <source>stacker 2 too full</source>
        <translation>光碟匣 2 過滿</translation>
    </message>
    <message>
        <source>in operation</source>
        <translation>運作中</translation>
    </message>
    <message>
        <source>stacker 3 too full</source>
        <translation>光碟匣 3 過滿</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>正在初始化</translation>
    </message>
    <message>
        <source>recovering</source>
        <translation>正在復原</translation>
    </message>
    <message>
        <source>finalizing</source>
        <translation>正在結束</translation>
    </message>
    <message>
        <source>initialization suspended</source>
        <translation>初始化已暫停</translation>
    </message>
    <message>
        <source>recovery suspended</source>
        <translation>復原已暫停</translation>
    </message>
    <message>
        <source>disc pick error</source>
        <translation>取片錯誤</translation>
    </message>
    <message>
        <source>under maintenance</source>
        <translation>正在維護</translation>
    </message>
    <message>
        <source>disc management error</source>
        <translation>光碟管理錯誤</translation>
    </message>
    <message>
        <source>fan error</source>
        <translation>風扇錯誤</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>無回應</translation>
    </message>
</context>
<context>
    <name>aboutDialog</name>
    <message>
        <source>About ARVEN Ulmar Disc Setup</source>
        <translation>關於 ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>程式圖示</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup for Linux</source>
        <translation>ARVEN Ulmar Disc Setup（Linux 版）</translation>
    </message>
    <message>
        <source>Registers disc publishers, shows their status and changes their settings.</source>
        <translation>註冊光碟發行機、顯示其狀態並變更其設定。</translation>
    </message>
</context>
<context>
    <name>addPublisherDialog</name>
    <message>
        <source>Register New CD/DVD/BD Publisher</source>
        <translation>註冊新的 CD/DVD/BD 發行機</translation>
    </message>
    <message>
        <source>Please specify the IP address or host name for the CD/DVD Publisher on the network you want to register.</source>
        <translation>請指定網路上要註冊的 CD/DVD 發行機的 IP 位址或主機名稱。</translation>
    </message>
    <message>
        <source>Please type the name of a CD/DVD Publisher.</source>
        <translation>請輸入 CD/DVD 發行機的名稱。</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>此名稱已經註冊。
請使用其他名稱。</translation>
    </message>
    <message>
        <source>The output device could not be found on the network.
There is a possibility that either the host name or IP address is wrong, or the output device is not connected to the network.</source>
        <translation>在網路上找不到輸出裝置。
可能是主機名稱或 IP 位址錯誤，或輸出裝置未連線到網路。</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>無法變更設定。</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning1</name>
    <message>
        <source>Head Cleaning</source>
        <translation>列印頭清潔</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>列印頭清潔</translation>
    </message>
    <message>
        <source>Only clean the print head when faint areas or gaps appear in your printout, because cleaning consumes ink.
If there is not enough ink to perform a head cleaning, replace the ink cartridge first.</source>
        <translation>清潔會消耗墨水，因此請只在列印結果出現顏色變淡或缺漏時清潔列印頭。
若墨水不足以執行列印頭清潔，請先更換墨水匣。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning2</name>
    <message>
        <source>Head Cleaning</source>
        <translation>列印頭清潔</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>列印頭清潔</translation>
    </message>
    <message>
        <source>Cleaning takes a couple of minutes.  Cleaning is finished when the power light on the printer&apos;s control panel stops flashing. To check the effectiveness of the cleaning, click the Print Nozzle Check Pattern.</source>
        <translation>清潔需要幾分鐘。當印表機控制面板上的電源指示燈停止閃爍時，即表示清潔完成。若要確認清潔效果，請按一下「列印噴嘴檢查圖樣」。</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>列印噴嘴檢查圖樣</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck1</name>
    <message>
        <source>Nozzle Check</source>
        <translation>噴嘴檢查</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>噴嘴檢查</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>噴嘴檢查圖樣</translation>
    </message>
    <message>
        <source>Print a pattern in order to check that the print head nozzles are not blocked.

Check the cable connection and turn the device on. Be sure to set discs with an outside print diameter of 116 mm or more in Stacker 1.</source>
        <translation>列印圖樣以檢查列印頭的噴嘴是否阻塞。

請檢查纜線連接並開啟裝置電源。請務必將列印區域外徑 116&#xa0;mm 以上的光碟放入光碟匣 1。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>列印</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck2</name>
    <message>
        <source>Nozzle Check</source>
        <translation>噴嘴檢查</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>噴嘴檢查</translation>
    </message>
    <message>
        <source>Pattern without missing segments</source>
        <translation>沒有缺漏線段的圖樣</translation>
    </message>
    <message>
        <source>Pattern with missing segments</source>
        <translation>有缺漏線段的圖樣</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>良好</translation>
    </message>
    <message>
        <source>Cleaning needed</source>
        <translation>需要清潔</translation>
    </message>
    <message>
        <source>Compare the printed pattern with the sample above. If any segments are missing in the printed pattern, click the Clean button. Otherwise, click the Finish button to quit.</source>
        <translation>請將列印出的圖樣與上方的樣本比較。如果列印出的圖樣有缺漏的線段，請按一下「清潔」。否則，請按一下「完成」以結束噴嘴檢查。</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>清潔</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>propertyDialog</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>主機名稱</translation>
    </message>
    <message>
        <source>Stacker Settings</source>
        <translation>光碟匣設定</translation>
    </message>
    <message>
        <source>Publish Mode</source>
        <translation>發行模式</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>標準模式</translation>
    </message>
    <message>
        <source>External Output / Low-volume mode</source>
        <translation>外部輸出/少量模式</translation>
    </message>
    <message>
        <source>Batch mode</source>
        <translation>批次模式</translation>
    </message>
    <message>
        <source>Stacker 1</source>
        <translation>光碟匣 1</translation>
    </message>
    <message>
        <source>Stacker 2</source>
        <translation>光碟匣 2</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>輸出光碟匣</translation>
    </message>
    <message>
        <source>Stacker 3</source>
        <translation>光碟匣 3</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>Do not use</source>
        <translation>不使用</translation>
    </message>
    <message>
        <source>Way of the discs</source>
        <translation>光碟移動路徑</translation>
    </message>
    <message>
        <source>Drive Settings</source>
        <translation>光碟機設定</translation>
    </message>
    <message>
        <source>Drive to Use</source>
        <translation>要使用的光碟機</translation>
    </message>
    <message>
        <source>Use Both</source>
        <translation>兩部都使用</translation>
    </message>
    <message>
        <source>Use Drive 1 Only</source>
        <translation>僅使用光碟機 1</translation>
    </message>
    <message>
        <source>Use Drive 2 Only</source>
        <translation>僅使用光碟機 2</translation>
    </message>
    <message>
        <source>Number of write retries</source>
        <translation>寫入重試次數</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>印表機設定</translation>
    </message>
    <message>
        <source>Show &amp;error mark on discs that experience errors</source>
        <translation>在發生錯誤的光碟上列印錯誤標記(&amp;E)</translation>
    </message>
    <message>
        <source>Failure error mark</source>
        <translation>錯誤標記</translation>
    </message>
    <message>
        <source>Printer Maintenance</source>
        <translation>印表機維護</translation>
    </message>
    <message>
        <source>Nozzle Check</source>
        <translation>噴嘴檢查</translation>
    </message>
    <message>
        <source>Use this utility if gaps or faint areas appear in your printout.</source>
        <translation>若列印結果出現缺漏或顏色變淡，請使用此功能。</translation>
    </message>
    <message>
        <source>Head Cleaning</source>
        <translation>列印頭清潔</translation>
    </message>
    <message>
        <source>Use this utility if your print quality declines or the Nozzle Check indicates clogged nozzles.</source>
        <translation>若列印品質下降，或噴嘴檢查顯示噴嘴阻塞，請使用此功能。</translation>
    </message>
    <message>
        <source>Maintenance Info</source>
        <translation>維護資訊</translation>
    </message>
    <message>
        <source>Total discs published:</source>
        <translation>已發行光碟總數：</translation>
    </message>
    <message>
        <source>[discs]</source>
        <translation>[片]</translation>
    </message>
    <message>
        <source>Number of printed discs:</source>
        <translation>已列印光碟數：</translation>
    </message>
    <message>
        <source>Maintenance Box free space:</source>
        <translation>維護盒剩餘空間：</translation>
    </message>
    <message>
        <source>[%]</source>
        <translation>[%]</translation>
    </message>
    <message>
        <source>Service life of Drive 1:</source>
        <translation>光碟機 1 的使用壽命：</translation>
    </message>
    <message>
        <source>Service life of Drive 2:</source>
        <translation>光碟機 2 的使用壽命：</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>序號：</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>版本資訊</translation>
    </message>
    <message>
        <source>Autoloader:</source>
        <translation>自動載片機構：</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>印表機：</translation>
    </message>
    <message>
        <source>Drive 1:</source>
        <translation>光碟機 1：</translation>
    </message>
    <message>
        <source>Drive 2:</source>
        <translation>光碟機 2：</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>伺服器：</translation>
    </message>
    <message>
        <source>Ulmar Disc Net Administrator:</source>
        <translation>Ulmar Disc Net Administrator：</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>套用(&amp;A)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>propertyDialogEx</name>
    <message>
        <source>Nozzle Check</source>
        <translation>噴嘴檢查</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>列印頭清潔</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>列印</translation>
    </message>
    <message>
        <source>Do not print</source>
        <translation>不列印</translation>
    </message>
    <message>
        <source>Service life of Drive:</source>
        <translation>光碟機的使用壽命：</translation>
    </message>
    <message>
        <source>Drive:</source>
        <translation>光碟機：</translation>
    </message>
    <message>
        <source>Properties - </source>
        <translation>內容 - </translation>
    </message>
    <message>
        <source>Please type a name for the output device.</source>
        <translation>請輸入輸出裝置的名稱。</translation>
    </message>
    <message>
        <source>&quot;\&quot; cannot be used in the output device name.</source>
        <translation>輸出裝置名稱中不能使用「\」。</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>此名稱已經註冊。
請使用其他名稱。</translation>
    </message>
    <message>
        <source>The settings could not be changed because registration of the Publish Mode in the output device settings failed.
Please change the settings after checking the power supply of the output device and the connection.</source>
        <translation>無法在輸出裝置中註冊發行模式，因此無法變更設定。
請檢查輸出裝置的電源和連線，然後再變更設定。</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>無法變更設定。</translation>
    </message>
    <message>
        <source>This output device is processing jobs and the settings could not be changed.
Please change it after all jobs are completed.</source>
        <translation>此輸出裝置正在處理工作，因此無法變更設定。
請在所有工作完成後再變更。</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>輸出光碟匣</translation>
    </message>
</context>
<context>
    <name>settingDialog</name>
    <message>
        <source>Common Setting for Publishing</source>
        <translation>光碟發行的共用設定</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Working Folder</source>
        <translation>工作資料夾</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>瀏覽...</translation>
    </message>
    <message>
        <source>Notification Settings</source>
        <translation>通知設定</translation>
    </message>
    <message>
        <source>Notification Method</source>
        <translation>通知方式</translation>
    </message>
    <message>
        <source>Beep when a job is finished, or when the source stacker is empty (RT-300III)</source>
        <translation>工作完成或供片光碟匣已空時發出提示音（RT-300III）</translation>
    </message>
    <message>
        <source>Notification when a job is finished</source>
        <translation>工作完成時的通知</translation>
    </message>
    <message>
        <source>Notify after each job is finished</source>
        <translation>每項工作完成後通知</translation>
    </message>
    <message>
        <source>Notify after all jobs are finished</source>
        <translation>所有工作完成後通知</translation>
    </message>
    <message>
        <source>Network CD/DVD/BD Publisher</source>
        <translation>網路 CD/DVD/BD 發行機</translation>
    </message>
    <message>
        <source>Compatibility Approval Settings</source>
        <translation>相容性許可設定</translation>
    </message>
    <message>
        <source>Allow security risks and approve the use of older versions of network CD/DVD/BD publishers</source>
        <translation>接受安全性風險，並許可使用舊版的網路 CD/DVD/BD 發行機</translation>
    </message>
    <message>
        <source>When this is selected, you can use the following devices.</source>
        <translation>選取此選項後，可以使用下列裝置。</translation>
    </message>
    <message>
        <source>RT-300NII:</source>
        <translation>RT-300NII：</translation>
    </message>
    <message>
        <source>Server versions older than 3.30</source>
        <translation>3.30 之前的伺服器版本</translation>
    </message>
    <message>
        <source>It is strongly recommended that you upgrade to the latest software version to handle vulnerabilities.</source>
        <translation>為因應安全性弱點，強烈建議升級到最新的軟體版本。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>套用(&amp;A)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>settingDialogEx</name>
    <message>
        <source>Select working folder.</source>
        <translation>選取工作資料夾</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The working folder could not be changed because there is a job being processed on this computer.
Please change the working folder after all jobs are finished.</source>
        <translation>這部電腦上有正在處理的工作，因此無法變更工作資料夾。
請在所有工作完成後再變更工作資料夾。</translation>
    </message>
    <message>
        <source>The specified folder cannot be set as the working folder.
Specify a different folder.</source>
        <translation>指定的資料夾無法設為工作資料夾。
請指定其他資料夾。</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>無法變更設定。</translation>
    </message>
</context>
</TS>
