<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ListedNameNote</name>
    <message>
        <source>It will be listed without a name.</source>
        <translation>一覧には名前なしで表示されます。</translation>
    </message>
    <message>
        <source>It will be listed as &quot;%1&quot;.</source>
        <translation>一覧には「%1」と表示されます。</translation>
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
        <translation>パブリッシャー</translation>
    </message>
    <message>
        <source>The registered disc publishers and their status</source>
        <translation>登録されているディスクパブリッシャーとその状態</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>追加(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>削除(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>プロパティ(&amp;P)...</translation>
    </message>
    <message>
        <source>Common &amp;Setting for Publishing…</source>
        <translation>発行の共通設定(&amp;S)...</translation>
    </message>
    <message>
        <source>Collect and Save Logs</source>
        <translation>ログの収集と保存</translation>
    </message>
    <message>
        <source>&amp;About Ulmar Disc Setup</source>
        <translation>Ulmar Disc Setup について(&amp;A)</translation>
    </message>
    <message>
        <source>Start Ulmar Disc &amp;Monitor</source>
        <translation>Ulmar Disc Monitor の起動(&amp;M)</translation>
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
        <translation>ログの収集が完了しました。</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly.</source>
        <translation>tarコマンドを実行できませんでした。正しくインストールされているか確認してください。</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly. (%d)</source>
        <translation>tarコマンドを実行できませんでした。正しくインストールされているか確認してください。(%d)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Model name</source>
        <translation>機種名</translation>
    </message>
    <message>
        <source>Host Name</source>
        <translation>ホスト名</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Transmitting</source>
        <translation>送信中</translation>
    </message>
    <message>
        <source>Available Space</source>
        <translation>空き容量</translation>
    </message>
    <message>
        <source>The Publish Mode registered in the output device could not be obtained, so the previously displayed  value is displayed.
The displayed Publish Mode and stacker settings may be different from the values that are actually registered.</source>
        <translation>出力装置に登録されている発行モードを取得できなかったため、前回表示した値を表示しています。
表示されている発行モードとスタッカーの設定は、実際に登録されている値と異なる場合があります。</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Do you want to delete it?</source>
        <translation>削除しますか？</translation>
    </message>
    <message>
        <source>There are jobs in the output device, so it could not be deleted.
Please delete it after all jobs are finished.</source>
        <translation>出力装置にジョブがあるため、削除できませんでした。
すべてのジョブが完了してから削除してください。</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>設定を変更できませんでした。</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup collects logs about CD/DVD/BD Publisher, and then saves them in local PC.
Refer to the documentation for what kind of information is collected.
ARVEN Ulmar Disc Setup does not send information.
Would you like to continue?</source>
        <translation>ARVEN Ulmar Disc Setup は、CD/DVD/BDパブリッシャーに関するログを収集し、このコンピューターに保存します。
収集する情報の種類については、説明書を参照してください。
ARVEN Ulmar Disc Setup が情報を送信することはありません。
続行しますか？</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>Archive file to save (*.tgz)</source>
        <translation>保存するアーカイブファイル (*.tgz)</translation>
    </message>
    <message>
        <source>Administrator not registered</source>
        <translation>管理者未登録</translation>
    </message>
    <message>
        <source>Unsupported version</source>
        <translation>未対応のバージョン</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>No publishers are registered. To add one, choose Add in the Edit menu.</source>
        <translation>登録されているパブリッシャーはありません。追加するには、「編集」メニューの「追加」を選択してください。</translation>
    </message>
    <message>
        <source>No publishers are registered.</source>
        <translation>登録されているパブリッシャーはありません。</translation>
    </message>
</context>
<context>
    <name>StatusProgram</name>
    <message>
        <source>Stacker 4</source>
        <translation>スタッカー4</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>インク</translation>
    </message>
    <message>
        <source>Prints left</source>
        <translation>残り印刷枚数</translation>
    </message>
    <message>
        <source>No jobs</source>
        <translation>ジョブなし</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Time left</source>
        <translation>残り時間</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>canceling</source>
        <translation>キャンセル処理中</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>一時停止処理中</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>停止処理中</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>キャンセル済み</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>イエロー</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>ライトシアン</translation>
    </message>
    <message>
        <source>Light magenta</source>
        <translation>ライトマゼンタ</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>ブラック</translation>
    </message>
    <message>
        <source>nearly empty</source>
        <translation>残りわずか</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>取り外し済み</translation>
    </message>
    <message>
        <source>not recognized</source>
        <translation>認識不可</translation>
    </message>
    <message>
        <source>not an original</source>
        <translation>非純正</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>not full</source>
        <translation>空きあり</translation>
    </message>
    <message>
        <source>too full</source>
        <translation>過積載</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>アイドル</translation>
    </message>
    <message>
        <source>contains a disc</source>
        <translation>ディスクあり</translation>
    </message>
    <message>
        <source>writing</source>
        <translation>書き込み中</translation>
    </message>
    <message>
        <source>verifying</source>
        <translation>検証中</translation>
    </message>
    <message>
        <source>error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>conveying</source>
        <translation>搬送中</translation>
    </message>
    <message>
        <source>running a plug-in</source>
        <translation>プラグイン実行中</translation>
    </message>
    <message>
        <source>measuring</source>
        <translation>測定中</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>読み取り中</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>クリーニング中</translation>
    </message>
    <message>
        <source>drying</source>
        <translation>乾燥中</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>ビジー</translation>
    </message>
    <message>
        <source>Security mode</source>
        <translation>セキュリティモード</translation>
    </message>
    <message>
        <source>Output control mode</source>
        <translation>排出制御モード</translation>
    </message>
    <message>
        <source>Error rate mode</source>
        <translation>エラーレートモード</translation>
    </message>
    <message>
        <source>Read mode</source>
        <translation>読み取りモード</translation>
    </message>
    <message>
        <source>Input Stacker</source>
        <translation>供給スタッカー</translation>
    </message>
    <message>
        <source>maintenance due soon</source>
        <translation>まもなくメンテナンスが必要</translation>
    </message>
    <message>
        <source>ink pad nearly full</source>
        <translation>廃インク吸収パッドがまもなく満杯</translation>
    </message>
    <message>
        <source>mechanical warning</source>
        <translation>機構の警告</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>オフライン</translation>
    </message>
    <message>
        <source>ink pad full</source>
        <translation>廃インク吸収パッドが満杯</translation>
    </message>
    <message>
        <source>maintenance required</source>
        <translation>メンテナンスが必要</translation>
    </message>
    <message>
        <source>fatal error</source>
        <translation>致命的なエラー</translation>
    </message>
    <message>
        <source>disc cover open</source>
        <translation>ディスクカバーが開いています</translation>
    </message>
    <message>
        <source>ink cover open</source>
        <translation>インクカバーが開いています</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>インク切れ</translation>
    </message>
    <message>
        <source>maintenance box cover open</source>
        <translation>メンテナンスボックスカバーが開いています</translation>
    </message>
    <message>
        <source>maintenance box removed</source>
        <translation>メンテナンスボックス取り外し済み</translation>
    </message>
    <message>
        <source>maintenance box full</source>
        <translation>メンテナンスボックスが満杯</translation>
    </message>
    <message>
        <source>mechanical error</source>
        <translation>機構エラー</translation>
    </message>
    <message>
        <source>stacker 1 removed</source>
        <translation>スタッカー1取り外し済み</translation>
    </message>
    <message>
        <source>stacker 2 removed</source>
        <translation>スタッカー2取り外し済み</translation>
    </message>
    <message>
        <source>stacker 3 removed</source>
        <translation>スタッカー3取り外し済み</translation>
    </message>
    <message>
        <source>stacker 4 open</source>
        <translation>スタッカー4が開いています</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>電源オフ</translation>
    </message>
    <message>
        <source>fatal printer error</source>
        <translation>プリンターの致命的なエラー</translation>
    </message>
    <message>
        <source>printer requires maintenance</source>
        <translation>プリンターのメンテナンスが必要</translation>
    </message>
    <message>
        <source>printer error</source>
        <translation>プリンターエラー</translation>
    </message>
    <message>
        <source>stacker 1 too full</source>
        <translation>スタッカー1のディスクが多すぎます</translation>
    </message>
    <message>
        <source>stacker 2 too full</source>
        <translation>スタッカー2のディスクが多すぎます</translation>
    </message>
    <message>
        <source>in operation</source>
        <translation>動作中</translation>
    </message>
    <message>
        <source>stacker 3 too full</source>
        <translation>スタッカー3のディスクが多すぎます</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>初期化中</translation>
    </message>
    <message>
        <source>recovering</source>
        <translation>復旧中</translation>
    </message>
    <message>
        <source>finalizing</source>
        <translation>終了処理中</translation>
    </message>
    <message>
        <source>initialization suspended</source>
        <translation>初期化中断</translation>
    </message>
    <message>
        <source>recovery suspended</source>
        <translation>復旧中断</translation>
    </message>
    <message>
        <source>disc pick error</source>
        <translation>ディスクの取り出しエラー</translation>
    </message>
    <message>
        <source>under maintenance</source>
        <translation>メンテナンス中</translation>
    </message>
    <message>
        <source>disc management error</source>
        <translation>ディスク管理エラー</translation>
    </message>
    <message>
        <source>fan error</source>
        <translation>ファンエラー</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>応答なし</translation>
    </message>
</context>
<context>
    <name>aboutDialog</name>
    <message>
        <source>About ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup について</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>プログラムのアイコン</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup for Linux</source>
        <translation>ARVEN Ulmar Disc Setup（Linux版）</translation>
    </message>
    <message>
        <source>Registers disc publishers, shows their status and changes their settings.</source>
        <translation>ディスクパブリッシャーの登録、状態の表示、設定の変更を行います。</translation>
    </message>
</context>
<context>
    <name>addPublisherDialog</name>
    <message>
        <source>Register New CD/DVD/BD Publisher</source>
        <translation>新しいCD/DVD/BDパブリッシャーの登録</translation>
    </message>
    <message>
        <source>Please specify the IP address or host name for the CD/DVD Publisher on the network you want to register.</source>
        <translation>ネットワーク上の、登録するCD/DVDパブリッシャーのIPアドレスまたはホスト名を指定してください。</translation>
    </message>
    <message>
        <source>Please type the name of a CD/DVD Publisher.</source>
        <translation>CD/DVDパブリッシャーの名前を入力してください。</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>同じ名前がすでに登録されています。
別の名前を使用してください。</translation>
    </message>
    <message>
        <source>The output device could not be found on the network.
There is a possibility that either the host name or IP address is wrong, or the output device is not connected to the network.</source>
        <translation>ネットワーク上に出力装置が見つかりませんでした。
ホスト名またはIPアドレスが間違っているか、出力装置がネットワークに接続されていない可能性があります。</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>設定を変更できませんでした。</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning1</name>
    <message>
        <source>Head Cleaning</source>
        <translation>ヘッドクリーニング</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>ヘッドクリーニング</translation>
    </message>
    <message>
        <source>Only clean the print head when faint areas or gaps appear in your printout, because cleaning consumes ink.
If there is not enough ink to perform a head cleaning, replace the ink cartridge first.</source>
        <translation>クリーニングではインクを消費します。印刷結果にかすれや抜けがある場合にのみ、プリントヘッドをクリーニングしてください。
ヘッドクリーニングに必要なインクが残っていない場合は、先にインクカートリッジを交換してください。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
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
        <translation>ヘッドクリーニング</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>ヘッドクリーニング</translation>
    </message>
    <message>
        <source>Cleaning takes a couple of minutes.  Cleaning is finished when the power light on the printer&apos;s control panel stops flashing. To check the effectiveness of the cleaning, click the Print Nozzle Check Pattern.</source>
        <translation>クリーニングには数分かかります。プリンターの操作パネルの電源ランプの点滅が止まると、クリーニングは完了です。クリーニングの効果を確認するには、「ノズルチェックパターン印刷」をクリックしてください。</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>ノズルチェックパターン印刷</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck1</name>
    <message>
        <source>Nozzle Check</source>
        <translation>ノズルチェック</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>ノズルチェック</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>ノズルチェックパターン</translation>
    </message>
    <message>
        <source>Print a pattern in order to check that the print head nozzles are not blocked.

Check the cable connection and turn the device on. Be sure to set discs with an outside print diameter of 116 mm or more in Stacker 1.</source>
        <translation>パターンを印刷して、プリントヘッドのノズルが目詰まりしていないか確認します。

ケーブルの接続を確認し、装置の電源を入れてください。スタッカー1には、必ず印刷領域の外径が116mm以上のディスクをセットしてください。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck2</name>
    <message>
        <source>Nozzle Check</source>
        <translation>ノズルチェック</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>ノズルチェック</translation>
    </message>
    <message>
        <source>Pattern without missing segments</source>
        <translation>欠けのないパターン</translation>
    </message>
    <message>
        <source>Pattern with missing segments</source>
        <translation>欠けのあるパターン</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>良好</translation>
    </message>
    <message>
        <source>Cleaning needed</source>
        <translation>クリーニングが必要</translation>
    </message>
    <message>
        <source>Compare the printed pattern with the sample above. If any segments are missing in the printed pattern, click the Clean button. Otherwise, click the Finish button to quit.</source>
        <translation>印刷されたパターンを上の見本と比べてください。パターンに欠けがある場合は、「クリーニング」をクリックしてください。欠けがない場合は、「終了」をクリックしてノズルチェックを終えてください。</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>クリーニング</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>propertyDialog</name>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>ホスト名</translation>
    </message>
    <message>
        <source>Stacker Settings</source>
        <translation>スタッカーの設定</translation>
    </message>
    <message>
        <source>Publish Mode</source>
        <translation>発行モード</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>標準モード</translation>
    </message>
    <message>
        <source>External Output / Low-volume mode</source>
        <translation>外部排出／少量モード</translation>
    </message>
    <message>
        <source>Batch mode</source>
        <translation>バッチモード</translation>
    </message>
    <message>
        <source>Stacker 1</source>
        <translation>スタッカー1</translation>
    </message>
    <message>
        <source>Stacker 2</source>
        <translation>スタッカー2</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>排出スタッカー</translation>
    </message>
    <message>
        <source>Stacker 3</source>
        <translation>スタッカー3</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>使用する</translation>
    </message>
    <message>
        <source>Do not use</source>
        <translation>使用しない</translation>
    </message>
    <message>
        <source>Way of the discs</source>
        <translation>ディスクの流れ</translation>
    </message>
    <message>
        <source>Drive Settings</source>
        <translation>光学ドライブの設定</translation>
    </message>
    <message>
        <source>Drive to Use</source>
        <translation>使用するドライブ</translation>
    </message>
    <message>
        <source>Use Both</source>
        <translation>両方使用する</translation>
    </message>
    <message>
        <source>Use Drive 1 Only</source>
        <translation>ドライブ1のみ使用する</translation>
    </message>
    <message>
        <source>Use Drive 2 Only</source>
        <translation>ドライブ2のみ使用する</translation>
    </message>
    <message>
        <source>Number of write retries</source>
        <translation>書き込みリトライ回数</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>プリンターの設定</translation>
    </message>
    <message>
        <source>Show &amp;error mark on discs that experience errors</source>
        <translation>エラーが発生したディスクにエラーマークを印刷する(&amp;E)</translation>
    </message>
    <message>
        <source>Failure error mark</source>
        <translation>エラーマーク</translation>
    </message>
    <message>
        <source>Printer Maintenance</source>
        <translation>プリンターメンテナンス</translation>
    </message>
    <message>
        <source>Nozzle Check</source>
        <translation>ノズルチェック</translation>
    </message>
    <message>
        <source>Use this utility if gaps or faint areas appear in your printout.</source>
        <translation>印刷結果にかすれや抜けがある場合に実行してください。</translation>
    </message>
    <message>
        <source>Head Cleaning</source>
        <translation>ヘッドクリーニング</translation>
    </message>
    <message>
        <source>Use this utility if your print quality declines or the Nozzle Check indicates clogged nozzles.</source>
        <translation>印刷品質が低下した場合や、ノズルチェックでノズルの目詰まりが確認された場合に実行してください。</translation>
    </message>
    <message>
        <source>Maintenance Info</source>
        <translation>メンテナンス情報</translation>
    </message>
    <message>
        <source>Total discs published:</source>
        <translation>総発行枚数:</translation>
    </message>
    <message>
        <source>[discs]</source>
        <translation>[枚]</translation>
    </message>
    <message>
        <source>Number of printed discs:</source>
        <translation>印刷枚数:</translation>
    </message>
    <message>
        <source>Maintenance Box free space:</source>
        <translation>メンテナンスボックスの空き容量:</translation>
    </message>
    <message>
        <source>[%]</source>
        <translation>[%]</translation>
    </message>
    <message>
        <source>Service life of Drive 1:</source>
        <translation>ドライブ1の寿命:</translation>
    </message>
    <message>
        <source>Service life of Drive 2:</source>
        <translation>ドライブ2の寿命:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>シリアル番号:</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Autoloader:</source>
        <translation>オートローダー:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>プリンター:</translation>
    </message>
    <message>
        <source>Drive 1:</source>
        <translation>ドライブ1:</translation>
    </message>
    <message>
        <source>Drive 2:</source>
        <translation>ドライブ2:</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>サーバー:</translation>
    </message>
    <message>
        <source>Ulmar Disc Net Administrator:</source>
        <translation>Ulmar Disc Net Administrator:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>propertyDialogEx</name>
    <message>
        <source>Nozzle Check</source>
        <translation>ノズルチェック</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>ヘッドクリーニング</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷する</translation>
    </message>
    <message>
        <source>Do not print</source>
        <translation>印刷しない</translation>
    </message>
    <message>
        <source>Service life of Drive:</source>
        <translation>ドライブの寿命:</translation>
    </message>
    <message>
        <source>Drive:</source>
        <translation>ドライブ:</translation>
    </message>
    <message>
        <source>Properties - </source>
        <translation>プロパティ - </translation>
    </message>
    <message>
        <source>Please type a name for the output device.</source>
        <translation>出力装置の名前を入力してください。</translation>
    </message>
    <message>
        <source>&quot;\&quot; cannot be used in the output device name.</source>
        <translation>出力装置の名前に「\」は使用できません。</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>同じ名前がすでに登録されています。
別の名前を使用してください。</translation>
    </message>
    <message>
        <source>The settings could not be changed because registration of the Publish Mode in the output device settings failed.
Please change the settings after checking the power supply of the output device and the connection.</source>
        <translation>出力装置に発行モードを登録できなかったため、設定を変更できませんでした。
出力装置の電源と接続を確認してから、設定を変更してください。</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>設定を変更できませんでした。</translation>
    </message>
    <message>
        <source>This output device is processing jobs and the settings could not be changed.
Please change it after all jobs are completed.</source>
        <translation>出力装置がジョブを処理しているため、設定を変更できませんでした。
すべてのジョブが完了してから変更してください。</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>排出スタッカー</translation>
    </message>
</context>
<context>
    <name>settingDialog</name>
    <message>
        <source>Common Setting for Publishing</source>
        <translation>発行の共通設定</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Working Folder</source>
        <translation>作業フォルダー</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>参照...</translation>
    </message>
    <message>
        <source>Notification Settings</source>
        <translation>通知の設定</translation>
    </message>
    <message>
        <source>Notification Method</source>
        <translation>通知方法</translation>
    </message>
    <message>
        <source>Beep when a job is finished, or when the source stacker is empty (RT-300III)</source>
        <translation>ジョブの完了時、または供給スタッカーが空になったときにブザーを鳴らす（RT-300III）</translation>
    </message>
    <message>
        <source>Notification when a job is finished</source>
        <translation>ジョブ完了時の通知</translation>
    </message>
    <message>
        <source>Notify after each job is finished</source>
        <translation>ジョブが完了するたびに通知する</translation>
    </message>
    <message>
        <source>Notify after all jobs are finished</source>
        <translation>すべてのジョブが完了したら通知する</translation>
    </message>
    <message>
        <source>Network CD/DVD/BD Publisher</source>
        <translation>ネットワークCD/DVD/BDパブリッシャー</translation>
    </message>
    <message>
        <source>Compatibility Approval Settings</source>
        <translation>互換性の許可の設定</translation>
    </message>
    <message>
        <source>Allow security risks and approve the use of older versions of network CD/DVD/BD publishers</source>
        <translation>セキュリティリスクを許容し、旧バージョンのネットワークCD/DVD/BDパブリッシャーの使用を許可する</translation>
    </message>
    <message>
        <source>When this is selected, you can use the following devices.</source>
        <translation>選択すると、次の装置を使用できます。</translation>
    </message>
    <message>
        <source>RT-300NII:</source>
        <translation>RT-300NII:</translation>
    </message>
    <message>
        <source>Server versions older than 3.30</source>
        <translation>3.30より前のバージョンのサーバー</translation>
    </message>
    <message>
        <source>It is strongly recommended that you upgrade to the latest software version to handle vulnerabilities.</source>
        <translation>脆弱性に対処するため、最新バージョンのソフトウェアへのアップグレードを強くお勧めします。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>settingDialogEx</name>
    <message>
        <source>Select working folder.</source>
        <translation>作業フォルダーの選択</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The working folder could not be changed because there is a job being processed on this computer.
Please change the working folder after all jobs are finished.</source>
        <translation>このコンピューターで処理中のジョブがあるため、作業フォルダーを変更できませんでした。
すべてのジョブが完了してから作業フォルダーを変更してください。</translation>
    </message>
    <message>
        <source>The specified folder cannot be set as the working folder.
Specify a different folder.</source>
        <translation>指定したフォルダーは作業フォルダーに設定できません。
別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>設定を変更できませんでした。</translation>
    </message>
</context>
</TS>
