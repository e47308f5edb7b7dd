<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ListedNameNote</name>
    <message>
        <source>It will be listed without a name.</source>
        <translation>列表中将不显示名称。</translation>
    </message>
    <message>
        <source>It will be listed as &quot;%1&quot;.</source>
        <translation>列表中将显示为“%1”。</translation>
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
        <translation>光盘发布机</translation>
    </message>
    <message>
        <source>The registered disc publishers and their status</source>
        <translation>已注册的光盘发布机及其状态</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>添加(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>删除(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>属性(&amp;P)...</translation>
    </message>
    <message>
        <source>Common &amp;Setting for Publishing…</source>
        <translation>光盘发布的通用设置(&amp;S)...</translation>
    </message>
    <message>
        <source>Collect and Save Logs</source>
        <translation>收集并保存日志</translation>
    </message>
    <message>
        <source>&amp;About Ulmar Disc Setup</source>
        <translation>关于 Ulmar Disc Setup(&amp;A)</translation>
    </message>
    <message>
        <source>Start Ulmar Disc &amp;Monitor</source>
        <translation>启动 Ulmar Disc Monitor(&amp;M)</translation>
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
        <translation>日志收集已完成。</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly.</source>
        <translation>无法执行 tar 命令。请检查是否已正确安装。</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly. (%d)</source>
        <translation>无法执行 tar 命令。请检查是否已正确安装。(%d)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Model name</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Host Name</source>
        <translation>主机名</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Transmitting</source>
        <translation>传输中</translation>
    </message>
    <message>
        <source>Available Space</source>
        <translation>可用空间</translation>
    </message>
    <message>
        <source>The Publish Mode registered in the output device could not be obtained, so the previously displayed  value is displayed.
The displayed Publish Mode and stacker settings may be different from the values that are actually registered.</source>
        <translation>无法获取输出设备中注册的发布模式，因此显示上次显示的值。
显示的发布模式和盘仓设置可能与实际注册的值不同。</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Do you want to delete it?</source>
        <translation>确定要删除吗？</translation>
    </message>
    <message>
        <source>There are jobs in the output device, so it could not be deleted.
Please delete it after all jobs are finished.</source>
        <translation>输出设备中有任务，因此无法删除。
请在所有任务完成后再删除。</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>无法更改设置。</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup collects logs about CD/DVD/BD Publisher, and then saves them in local PC.
Refer to the documentation for what kind of information is collected.
ARVEN Ulmar Disc Setup does not send information.
Would you like to continue?</source>
        <translation>ARVEN Ulmar Disc Setup 将收集有关 CD/DVD/BD 发布机的日志，并将其保存到本机。
有关所收集信息的种类，请参阅文档。
ARVEN Ulmar Disc Setup 不会发送任何信息。
是否继续？</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Archive file to save (*.tgz)</source>
        <translation>要保存的归档文件 (*.tgz)</translation>
    </message>
    <message>
        <source>Administrator not registered</source>
        <translation>管理员未注册</translation>
    </message>
    <message>
        <source>Unsupported version</source>
        <translation>不支持的版本</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>No publishers are registered. To add one, choose Add in the Edit menu.</source>
        <translation>没有已注册的光盘发布机。要添加，请在“编辑”菜单中选择“添加”。</translation>
    </message>
    <message>
        <source>No publishers are registered.</source>
        <translation>没有已注册的光盘发布机。</translation>
    </message>
</context>
<context>
    <name>StatusProgram</name>
    <message>
        <source>Stacker 4</source>
        <translation>盘仓 4</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>墨水</translation>
    </message>
    <message>
        <source>Prints left</source>
        <translation>剩余打印数</translation>
    </message>
    <message>
        <source>No jobs</source>
        <translation>没有任务</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>光盘</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Time left</source>
        <translation>剩余时间</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>running</source>
        <translation>正在运行</translation>
    </message>
    <message>
        <source>canceling</source>
        <translation>正在取消</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>正在暂停</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>已暂停</translation>
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
        <translation>洋红色</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>浅青色</translation>
    </message>
    <message>
        <source>Light magenta</source>
        <translation>浅洋红色</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>nearly empty</source>
        <translation>即将用尽</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>已取出</translation>
    </message>
    <message>
        <source>not recognized</source>
        <translation>无法识别</translation>
    </message>
    <message>
        <source>not an original</source>
        <translation>非原装</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>not full</source>
        <translation>未满</translation>
    </message>
    <message>
        <source>too full</source>
        <translation>过满</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>contains a disc</source>
        <translation>内有光盘</translation>
    </message>
    <message>
        <source>writing</source>
        <translation>正在写入</translation>
    </message>
    <message>
        <source>verifying</source>
        <translation>正在校验</translation>
    </message>
    <message>
        <source>error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>conveying</source>
        <translation>正在传送</translation>
    </message>
    <message>
        <source>running a plug-in</source>
        <translation>正在运行插件</translation>
    </message>
    <message>
        <source>measuring</source>
        <translation>正在测量</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>正在读取</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>正在打印</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>正在清洗</translation>
    </message>
    <message>
        <source>drying</source>
        <translation>正在干燥</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>忙</translation>
    </message>
    <message>
        <source>Security mode</source>
        <translation>安全模式</translation>
    </message>
    <message>
        <source>Output control mode</source>
        <translation>输出控制模式</translation>
    </message>
    <message>
        <source>Error rate mode</source>
        <translation>错误率模式</translation>
    </message>
    <message>
        <source>Read mode</source>
        <translation>读取模式</translation>
    </message>
    <message>
        <source>Input Stacker</source>
        <translation>供盘盘仓</translation>
    </message>
    <message>
        <source>maintenance due soon</source>
        <translation>即将需要维护</translation>
    </message>
    <message>
        <source>ink pad nearly full</source>
        <translation>废墨垫即将满</translation>
    </message>
    <message>
        <source>mechanical warning</source>
        <translation>机械警告</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>脱机</translation>
    </message>
    <message>
        <source>ink pad full</source>
        <translation>废墨垫已满</translation>
    </message>
    <message>
        <source>maintenance required</source>
        <translation>需要维护</translation>
    </message>
    <message>
        <source>fatal error</source>
        <translation>严重错误</translation>
    </message>
    <message>
        <source>disc cover open</source>
        <translation>光盘盖已打开</translation>
    </message>
    <message>
        <source>ink cover open</source>
        <translation>墨水盖已打开</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>墨水用尽</translation>
    </message>
    <message>
        <source>maintenance box cover open</source>
        <translation>维护箱盖已打开</translation>
    </message>
    <message>
        <source>maintenance box removed</source>
        <translation>维护箱已取下</translation>
    </message>
    <message>
        <source>maintenance box full</source>
        <translation>维护箱已满</translation>
    </message>
    <message>
        <source>mechanical error</source>
        <translation>机械错误</translation>
    </message>
    <message>
        <source>stacker 1 removed</source>
        <translation>盘仓 1 已取下</translation>
    </message>
    <message>
        <source>stacker 2 removed</source>
        <translation>盘仓 2 已取下</translation>
    </message>
    <message>
        <source>stacker 3 removed</source>
        <translation>盘仓 3 已取下</translation>
    </message>
    <message>
        <source>stacker 4 open</source>
        <translation>盘仓 4 已打开</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>已关机</translation>
    </message>
    <message>
        <source>fatal printer error</source>
        <translation>打印机严重错误</translation>
    </message>
    <message>
        <source>printer requires maintenance</source>
        <translation>打印机需要维护</translation>
    </message>
    <message>
        <source>printer error</source>
        <translation>打印机错误</translation>
    </message>
    <message>
        <source>stacker 1 too full</source>
        <translation>盘仓 1 过满</translation>
    </message>
    <message>
        <source>stacker 2 too full</source>
        <translation>盘仓 2 过满</translation>
    </message>
    <message>
        <source>in operation</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>stacker 3 too full</source>
        <translation>盘仓 3 过满</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>正在初始化</translation>
    </message>
    <message>
        <source>recovering</source>
        <translation>正在恢复</translation>
    </message>
    <message>
        <source>finalizing</source>
        <translation>正在结束</translation>
    </message>
    <message>
        <source>initialization suspended</source>
        <translation>初始化已暂停</translation>
    </message>
    <message>
        <source>recovery suspended</source>
        <translation>恢复已暂停</translation>
    </message>
    <message>
        <source>disc pick error</source>
        <translation>取盘错误</translation>
    </message>
    <message>
        <source>under maintenance</source>
        <translation>正在维护</translation>
    </message>
    <message>
        <source>disc management error</source>
        <translation>光盘管理错误</translation>
    </message>
    <message>
        <source>fan error</source>
        <translation>风扇错误</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>无应答</translation>
    </message>
</context>
<context>
    <name>aboutDialog</name>
    <message>
        <source>About ARVEN Ulmar Disc Setup</source>
        <translation>关于 ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>程序图标</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup for Linux</source>
        <translation>ARVEN Ulmar Disc Setup（Linux 版）</translation>
    </message>
    <message>
        <source>Registers disc publishers, shows their status and changes their settings.</source>
        <translation>注册光盘发布机、显示其状态并更改其设置。</translation>
    </message>
</context>
<context>
    <name>addPublisherDialog</name>
    <message>
        <source>Register New CD/DVD/BD Publisher</source>
        <translation>注册新的 CD/DVD/BD 发布机</translation>
    </message>
    <message>
        <source>Please specify the IP address or host name for the CD/DVD Publisher on the network you want to register.</source>
        <translation>请指定网络上要注册的 CD/DVD 发布机的 IP 地址或主机名。</translation>
    </message>
    <message>
        <source>Please type the name of a CD/DVD Publisher.</source>
        <translation>请输入 CD/DVD 发布机的名称。</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>该名称已被注册。
请使用其他名称。</translation>
    </message>
    <message>
        <source>The output device could not be found on the network.
There is a possibility that either the host name or IP address is wrong, or the output device is not connected to the network.</source>
        <translation>在网络上找不到该输出设备。
可能是主机名或 IP 地址有误，或者输出设备未连接到网络。</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>无法更改设置。</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning1</name>
    <message>
        <source>Head Cleaning</source>
        <translation>打印头清洗</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>打印头清洗</translation>
    </message>
    <message>
        <source>Only clean the print head when faint areas or gaps appear in your printout, because cleaning consumes ink.
If there is not enough ink to perform a head cleaning, replace the ink cartridge first.</source>
        <translation>清洗会消耗墨水，因此请仅在打印结果出现颜色变淡或漏白时清洗打印头。
如果墨水不足以完成打印头清洗，请先更换墨盒。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning2</name>
    <message>
        <source>Head Cleaning</source>
        <translation>打印头清洗</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>打印头清洗</translation>
    </message>
    <message>
        <source>Cleaning takes a couple of minutes.  Cleaning is finished when the power light on the printer&apos;s control panel stops flashing. To check the effectiveness of the cleaning, click the Print Nozzle Check Pattern.</source>
        <translation>清洗需要几分钟。打印机控制面板上的电源指示灯停止闪烁时，清洗即告完成。要确认清洗效果，请单击“打印喷嘴检查图案”。</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>打印喷嘴检查图案</translation>
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
        <translation>喷嘴检查</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>喷嘴检查</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>喷嘴检查图案</translation>
    </message>
    <message>
        <source>Print a pattern in order to check that the print head nozzles are not blocked.

Check the cable connection and turn the device on. Be sure to set discs with an outside print diameter of 116 mm or more in Stacker 1.</source>
        <translation>打印图案以检查打印头的喷嘴是否堵塞。

请检查电缆连接，并打开设备电源。请务必在盘仓 1 中放入打印区域外径不小于 116&#xa0;mm 的光盘。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck2</name>
    <message>
        <source>Nozzle Check</source>
        <translation>喷嘴检查</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>喷嘴检查</translation>
    </message>
    <message>
        <source>Pattern without missing segments</source>
        <translation>无缺失线段的图案</translation>
    </message>
    <message>
        <source>Pattern with missing segments</source>
        <translation>有缺失线段的图案</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>良好</translation>
    </message>
    <message>
        <source>Cleaning needed</source>
        <translation>需要清洗</translation>
    </message>
    <message>
        <source>Compare the printed pattern with the sample above. If any segments are missing in the printed pattern, click the Clean button. Otherwise, click the Finish button to quit.</source>
        <translation>请将打印出的图案与上面的样图进行比较。如果打印出的图案有缺失的线段，请单击“清洗”。否则，请单击“完成”以结束喷嘴检查。</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>清洗</translation>
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
        <translation>常规</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>主机名</translation>
    </message>
    <message>
        <source>Stacker Settings</source>
        <translation>盘仓设置</translation>
    </message>
    <message>
        <source>Publish Mode</source>
        <translation>发布模式</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>标准模式</translation>
    </message>
    <message>
        <source>External Output / Low-volume mode</source>
        <translation>外部输出/小批量模式</translation>
    </message>
    <message>
        <source>Batch mode</source>
        <translation>批处理模式</translation>
    </message>
    <message>
        <source>Stacker 1</source>
        <translation>盘仓 1</translation>
    </message>
    <message>
        <source>Stacker 2</source>
        <translation>盘仓 2</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>输出盘仓</translation>
    </message>
    <message>
        <source>Stacker 3</source>
        <translation>盘仓 3</translation>
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
        <translation>光盘移动路径</translation>
    </message>
    <message>
        <source>Drive Settings</source>
        <translation>光驱设置</translation>
    </message>
    <message>
        <source>Drive to Use</source>
        <translation>要使用的光驱</translation>
    </message>
    <message>
        <source>Use Both</source>
        <translation>两个都使用</translation>
    </message>
    <message>
        <source>Use Drive 1 Only</source>
        <translation>仅使用光驱 1</translation>
    </message>
    <message>
        <source>Use Drive 2 Only</source>
        <translation>仅使用光驱 2</translation>
    </message>
    <message>
        <source>Number of write retries</source>
        <translation>写入重试次数</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>打印机设置</translation>
    </message>
    <message>
        <source>Show &amp;error mark on discs that experience errors</source>
        <translation>在出错的光盘上打印错误标记(&amp;E)</translation>
    </message>
    <message>
        <source>Failure error mark</source>
        <translation>错误标记</translation>
    </message>
    <message>
        <source>Printer Maintenance</source>
        <translation>打印机维护</translation>
    </message>
    <message>
        <source>Nozzle Check</source>
        <translation>喷嘴检查</translation>
    </message>
    <message>
        <source>Use this utility if gaps or faint areas appear in your printout.</source>
        <translation>如果打印结果出现漏白或颜色变淡，请使用此功能。</translation>
    </message>
    <message>
        <source>Head Cleaning</source>
        <translation>打印头清洗</translation>
    </message>
    <message>
        <source>Use this utility if your print quality declines or the Nozzle Check indicates clogged nozzles.</source>
        <translation>如果打印质量下降，或喷嘴检查显示喷嘴堵塞，请使用此功能。</translation>
    </message>
    <message>
        <source>Maintenance Info</source>
        <translation>维护信息</translation>
    </message>
    <message>
        <source>Total discs published:</source>
        <translation>已发布光盘总数：</translation>
    </message>
    <message>
        <source>[discs]</source>
        <translation>[张]</translation>
    </message>
    <message>
        <source>Number of printed discs:</source>
        <translation>已打印光盘数：</translation>
    </message>
    <message>
        <source>Maintenance Box free space:</source>
        <translation>维护箱剩余空间：</translation>
    </message>
    <message>
        <source>[%]</source>
        <translation>[%]</translation>
    </message>
    <message>
        <source>Service life of Drive 1:</source>
        <translation>光驱 1 的使用寿命：</translation>
    </message>
    <message>
        <source>Service life of Drive 2:</source>
        <translation>光驱 2 的使用寿命：</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>序列号：</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>版本信息</translation>
    </message>
    <message>
        <source>Autoloader:</source>
        <translation>自动装盘机构：</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>打印机：</translation>
    </message>
    <message>
        <source>Drive 1:</source>
        <translation>光驱 1：</translation>
    </message>
    <message>
        <source>Drive 2:</source>
        <translation>光驱 2：</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>服务器：</translation>
    </message>
    <message>
        <source>Ulmar Disc Net Administrator:</source>
        <translation>Ulmar Disc Net Administrator：</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
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
        <translation>喷嘴检查</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>打印头清洗</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Do not print</source>
        <translation>不打印</translation>
    </message>
    <message>
        <source>Service life of Drive:</source>
        <translation>光驱的使用寿命：</translation>
    </message>
    <message>
        <source>Drive:</source>
        <translation>光驱：</translation>
    </message>
    <message>
        <source>Properties - </source>
        <translation>属性 - </translation>
    </message>
    <message>
        <source>Please type a name for the output device.</source>
        <translation>请输入输出设备的名称。</translation>
    </message>
    <message>
        <source>&quot;\&quot; cannot be used in the output device name.</source>
        <translation>输出设备名称中不能使用“\”。</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>该名称已被注册。
请使用其他名称。</translation>
    </message>
    <message>
        <source>The settings could not be changed because registration of the Publish Mode in the output device settings failed.
Please change the settings after checking the power supply of the output device and the connection.</source>
        <translation>无法在输出设备中注册发布模式，因此未能更改设置。
请检查输出设备的电源和连接，然后再更改设置。</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>无法更改设置。</translation>
    </message>
    <message>
        <source>This output device is processing jobs and the settings could not be changed.
Please change it after all jobs are completed.</source>
        <translation>该输出设备正在处理任务，因此无法更改设置。
请在所有任务完成后再更改。</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>输出盘仓</translation>
    </message>
</context>
<context>
    <name>settingDialog</name>
    <message>
        <source>Common Setting for Publishing</source>
        <translation>光盘发布的通用设置</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Working Folder</source>
        <translation>工作文件夹</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
    <message>
        <source>Notification Settings</source>
        <translation>通知设置</translation>
    </message>
    <message>
        <source>Notification Method</source>
        <translation>通知方式</translation>
    </message>
    <message>
        <source>Beep when a job is finished, or when the source stacker is empty (RT-300III)</source>
        <translation>任务完成或供盘仓为空时发出提示音（RT-300III）</translation>
    </message>
    <message>
        <source>Notification when a job is finished</source>
        <translation>任务完成时的通知</translation>
    </message>
    <message>
        <source>Notify after each job is finished</source>
        <translation>每个任务完成后通知</translation>
    </message>
    <message>
        <source>Notify after all jobs are finished</source>
        <translation>所有任务完成后通知</translation>
    </message>
    <message>
        <source>Network CD/DVD/BD Publisher</source>
        <translation>网络 CD/DVD/BD 发布机</translation>
    </message>
    <message>
        <source>Compatibility Approval Settings</source>
        <translation>兼容性许可设置</translation>
    </message>
    <message>
        <source>Allow security risks and approve the use of older versions of network CD/DVD/BD publishers</source>
        <translation>接受安全风险，并许可使用旧版本的网络 CD/DVD/BD 发布机</translation>
    </message>
    <message>
        <source>When this is selected, you can use the following devices.</source>
        <translation>选中此项后，可以使用以下设备。</translation>
    </message>
    <message>
        <source>RT-300NII:</source>
        <translation>RT-300NII：</translation>
    </message>
    <message>
        <source>Server versions older than 3.30</source>
        <translation>服务器版本低于 3.30</translation>
    </message>
    <message>
        <source>It is strongly recommended that you upgrade to the latest software version to handle vulnerabilities.</source>
        <translation>为应对安全漏洞，强烈建议升级到最新的软件版本。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
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
        <translation>选择工作文件夹</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The working folder could not be changed because there is a job being processed on this computer.
Please change the working folder after all jobs are finished.</source>
        <translation>此计算机上有正在处理的任务，因此无法更改工作文件夹。
请在所有任务完成后再更改工作文件夹。</translation>
    </message>
    <message>
        <source>The specified folder cannot be set as the working folder.
Specify a different folder.</source>
        <translation>指定的文件夹不能设为工作文件夹。
请指定其他文件夹。</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>无法更改设置。</translation>
    </message>
</context>
</TS>
