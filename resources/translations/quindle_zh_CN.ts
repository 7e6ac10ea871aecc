<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Dates</name>
    <message>
        <source>MMM d</source>
        <comment>as date formats write it</comment>
        <translation>M月d日</translation>
    </message>
    <message>
        <source>MMMM yyyy</source>
        <comment>as date formats write it</comment>
        <translation>yyyy年M月</translation>
    </message>
    <message>
        <source>d MMM</source>
        <comment>as date formats write it</comment>
        <translation>M月d日</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <comment>as date formats write it</comment>
        <translation>yyyy年M月d日</translation>
    </message>
</context>
<context>
    <name>Details</name>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>电源</translation>
    </message>
    <message>
        <source>Power source %1</source>
        <translation>电源 %1</translation>
    </message>
    <message>
        <source>Registry: %1</source>
        <translation>注册表：%1</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
</context>
<context>
    <name>Facts</name>
    <message>
        <source>%1 Watts</source>
        <translation>%1 瓦</translation>
    </message>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation>
            <numerusform>%1 次循环</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1 天</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 months</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1 个月</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>capacities</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 years</source>
        <comment>age with one decimal</comment>
        <translation>%1 年</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>1 次循环</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>电源适配器</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>使用时间</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>电池 %1</translation>
    </message>
    <message>
        <source>Battery age</source>
        <translation>电池使用时间</translation>
    </message>
    <message>
        <source>Battery device</source>
        <translation>电池设备</translation>
    </message>
    <message>
        <source>Battery fully charged</source>
        <translation>电池已充满</translation>
    </message>
    <message>
        <source>Battery made by</source>
        <translation>电池制造商</translation>
    </message>
    <message>
        <source>Battery usage</source>
        <translation>耗电功率</translation>
    </message>
    <message>
        <source>Built %1</source>
        <translation>制造日期：%1</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>正在计算…</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>电量</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>充电上限</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>已充满</translation>
    </message>
    <message>
        <source>Chargin with</source>
        <translation>充电功率</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>正在充电</translation>
    </message>
    <message>
        <source>Charging with</source>
        <translation>充电功率</translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation>正在充电…</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>电脑</translation>
    </message>
    <message>
        <source>Computer age</source>
        <translation>电脑使用时间</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>极低</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>循环次数</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Discharging</source>
        <translation>正在放电</translation>
    </message>
    <message>
        <source>Discharging with</source>
        <translation>放电功率</translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation>正在放电…</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>满</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>完全充电容量</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>良好</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健康度</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Made by</source>
        <translation>制造商</translation>
    </message>
    <message>
        <source>Manufactured %1</source>
        <translation>制造日期：%1</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>No Errors</source>
        <translation>无错误</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>无电池</translation>
    </message>
    <message>
        <source>No design capacity</source>
        <translation>无设计容量</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Not known</source>
        <comment>the health</comment>
        <translation>未知</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>差</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>功率</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>The actual capacity the battery had after it left the factory. (reported by the manufacturer)</source>
        <translation>电池出厂后的实际容量（由制造商提供）。</translation>
    </message>
    <message>
        <source>The capacity the battery reports it had after it left the factory. (stored in the Firmware)</source>
        <translation>电池报告的出厂容量（存储在固件中）。</translation>
    </message>
    <message>
        <source>The number of charge/discharge cycles the battery has experienced.</source>
        <translation>电池经历的充放电循环次数。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Time until empty</source>
        <translation>距离用尽</translation>
    </message>
    <message>
        <source>Time until full</source>
        <translation>距离充满</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
</context>
<context>
    <name>HistoryRange</name>
    <message>
        <source>&amp;All</source>
        <translation>全部(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>日(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>月(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>周(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>年(&amp;Y)</translation>
    </message>
    <message>
        <source>last 24 hours</source>
        <translation>过去 24 小时</translation>
    </message>
    <message>
        <source>last 30 days</source>
        <translation>过去 30 天</translation>
    </message>
    <message>
        <source>last 365 days</source>
        <translation>过去 365 天</translation>
    </message>
    <message>
        <source>last 7 days</source>
        <translation>过去 7 天</translation>
    </message>
    <message>
        <source>whole history</source>
        <translation>全部历史记录</translation>
    </message>
</context>
<context>
    <name>HistorySettings</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 天</numerusform>
        </translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 年</translation>
    </message>
    <message>
        <source>10 years</source>
        <translation>10 年</translation>
    </message>
    <message>
        <source>2 years</source>
        <translation>2 年</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>30 天</translation>
    </message>
    <message>
        <source>5 years</source>
        <translation>5 年</translation>
    </message>
    <message>
        <source>90 days</source>
        <translation>90 天</translation>
    </message>
    <message>
        <source>For ever</source>
        <translation>永久</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>Menu Bar Text...</source>
        <translation>菜单栏文本…</translation>
    </message>
    <message>
        <source>Open Application</source>
        <translation>打开应用程序</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Show Battery...</source>
        <translation>显示电池…</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
</context>
<context>
    <name>Numbers</name>
    <message>
        <source>.</source>
        <comment>between a whole number and its decimals</comment>
        <translation>.</translation>
    </message>
    <message>
        <source>C</source>
        <comment>the language&apos;s locale, such as de_DE</comment>
        <translation>zh_CN</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Battery History</source>
        <translation>电池历史记录</translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation>电池状态</translation>
    </message>
    <message>
        <source>Battery charge, health and time in the panel</source>
        <translation>在面板中显示电池电量、健康度和剩余时间</translation>
    </message>
    <message>
        <source>Battery charge, health and what becomes of them</source>
        <translation>电池电量、健康度及其变化</translation>
    </message>
    <message>
        <source>Charge, power, remaining time, health, cycles, age and temperature</source>
        <translation>电量、功率、剩余时间、健康度、循环次数、使用时间和温度</translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>FORMAT</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere unless you allow it</source>
        <translation>未经允许，不会向任何地方发送任何内容</translation>
    </message>
    <message>
        <source>Quindle shows everything that the batteries of your portable computer report, in one window. Its companion, Quindle Helper, sits in the tray of your panel with a title made from your own template and an icon; a click there opens the battery view.</source>
        <translation>Quindle 在一个窗口中显示便携式电脑的电池所报告的全部信息。配套程序 Quindle Helper 位于面板的系统托盘中，显示由您自己的模板生成的标题和一个图标；点击即可打开电池视图。</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Several batteries combined into one</source>
        <translation>多块电池合并显示为一块</translation>
    </message>
    <message>
        <source>Trays on X11 and on Wayland</source>
        <translation>X11 和 Wayland 上的系统托盘</translation>
    </message>
    <message>
        <source>battery charge, health and time in the panel</source>
        <translation>在面板中显示电池电量、健康度和剩余时间</translation>
    </message>
    <message>
        <source>battery charge, health and what becomes of them</source>
        <translation>电池电量、健康度及其变化</translation>
    </message>
    <message>
        <source>battery;power;charge;health;laptop;</source>
        <translation>电池;电源;电量;充电;健康度;笔记本;battery;</translation>
    </message>
    <message>
        <source>battery;power;charge;health;wear;laptop;</source>
        <translation>电池;电源;电量;充电;健康度;损耗;笔记本;battery;</translation>
    </message>
    <message>
        <source>print the battery as Quindle Helper sees it</source>
        <translation>输出 Quindle Helper 所见的电池信息</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>快照</translation>
    </message>
</context>
<context>
    <name>Placeholders</name>
    <message>
        <source>Charge cycles</source>
        <translation>充电循环次数</translation>
    </message>
    <message>
        <source>Charge in percent</source>
        <translation>电量百分比</translation>
    </message>
    <message>
        <source>Charging or discharging</source>
        <translation>正在充电或放电</translation>
    </message>
    <message>
        <source>Current in milliamperes</source>
        <translation>电流（毫安）</translation>
    </message>
    <message>
        <source>Power in watts</source>
        <translation>功率（瓦）</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <translation>剩余时间</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Newer versions come from where this copy was installed from.</source>
        <translation>新版本来自此副本的安装来源。</translation>
    </message>
    <message>
        <source>Nothing would be sent now: a value that names the battery is missing.</source>
        <translation>现在不会发送任何内容：缺少用于标识电池的值。</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>This copy was built on this computer. Newer source, built again, updates it.</source>
        <translation>此副本是在这台电脑上构建的。用更新的源代码重新构建即可更新。</translation>
    </message>
    <message>
        <source>This is the package &quot;%1&quot;. Newer versions of it are installed with %2, as those of the other packages of this system.</source>
        <translation>这是软件包“%1”。它的新版本与本系统的其他软件包一样，通过 %2 安装。</translation>
    </message>
    <message>
        <source>Unknown</source>
        <comment>the version</comment>
        <translation>未知</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>title of the pane</comment>
        <translation>更新</translation>
    </message>
</context>
<context>
    <name>SampleChart</name>
    <message>
        <source>Charge</source>
        <translation>电量</translation>
    </message>
    <message>
        <source>Nothing was recorded in this time.</source>
        <translation>这段时间没有记录。</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>功率</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>正在充电</translation>
    </message>
    <message>
        <source>discharging</source>
        <translation>正在放电</translation>
    </message>
    <message>
        <source>from UPower</source>
        <translation>来自 UPower</translation>
    </message>
    <message>
        <source>full</source>
        <translation>已充满</translation>
    </message>
</context>
<context>
    <name>SnapshotFiles</name>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Archives of snapshots (*.qndarchive)</source>
        <translation>快照归档 (*.qndarchive)</translation>
    </message>
    <message>
        <source>Export Snapshots</source>
        <translation>导出快照</translation>
    </message>
    <message>
        <source>Import Snapshots</source>
        <translation>导入快照</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>表格 (*.csv)</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>包含序列号(&amp;N)</translation>
    </message>
</context>
<context>
    <name>Snapshots</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 天</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points</source>
        <comment>of health, with one decimal</comment>
        <translation>%1 个百分点</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1 个快照</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots deleted</source>
        <translation>
            <numerusform>已删除 %1 个快照</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots imported</source>
        <translation>
            <numerusform>已导入 %1 个快照</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots restored</source>
        <translation>
            <numerusform>已恢复 %1 个快照</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 天</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>1 个快照</translation>
    </message>
    <message>
        <source>1 snapshot deleted</source>
        <translation>已删除 1 个快照</translation>
    </message>
    <message>
        <source>1 snapshot imported</source>
        <translation>已导入 1 个快照</translation>
    </message>
    <message>
        <source>1 snapshot restored</source>
        <translation>已恢复 1 个快照</translation>
    </message>
    <message>
        <source>1 snapshot saved</source>
        <translation>已保存 1 个快照</translation>
    </message>
    <message>
        <source>All snapshots deleted</source>
        <translation>已删除所有快照</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>电脑</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>循环次数</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>设计容量</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>完全充电容量</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健康度</translation>
    </message>
    <message>
        <source>There is no folder for snapshots: the user has no home folder</source>
        <translation>没有用于存放快照的文件夹：该用户没有主文件夹</translation>
    </message>
</context>
<context>
    <name>Trend</name>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation>
            <numerusform>%1 次循环</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 天</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points a year</source>
        <translation>每年 %1 个百分点</translation>
    </message>
    <message>
        <source>%1 so far</source>
        <comment>days</comment>
        <translation>目前已记录 %1</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>a pace, days</comment>
        <translation>%1（依据 %2的记录）</translation>
    </message>
    <message>
        <source>%1, from %2 and %3</source>
        <comment>a pace, days, cycles</comment>
        <translation>%1（依据 %2、%3的记录）</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>1 次循环</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 天</translation>
    </message>
    <message>
        <source>80 %</source>
        <translation>80%</translation>
    </message>
    <message>
        <source>80 % of its first full charge</source>
        <translation>首次完全充电容量的 80%</translation>
    </message>
    <message>
        <source>Already under %1</source>
        <translation>已低于%1</translation>
    </message>
    <message>
        <source>At this pace %1 %2</source>
        <comment>a percentage, when</comment>
        <translation>按此速度，%2降至%1</translation>
    </message>
    <message>
        <source>No wear to be seen in %1</source>
        <comment>days</comment>
        <translation>%1内未见损耗</translation>
    </message>
    <message>
        <source>Not enough history yet (needs 60 days)</source>
        <translation>历史记录尚不足（需要 60 天）</translation>
    </message>
    <message>
        <source>about now</source>
        <translation>大约现在</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a month with its year</comment>
        <translation>%1前后</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a year</comment>
        <translation>%1年前后</translation>
    </message>
    <message>
        <source>between %1 and %2</source>
        <comment>years</comment>
        <translation>%1年至%2年间</translation>
    </message>
    <message>
        <source>in early %1</source>
        <comment>a year</comment>
        <translation>%1年初</translation>
    </message>
    <message>
        <source>in late %1</source>
        <comment>a year</comment>
        <translation>%1年末</translation>
    </message>
    <message>
        <source>in mid-%1</source>
        <comment>a year</comment>
        <translation>%1年年中</translation>
    </message>
    <message>
        <source>in more than 20 years</source>
        <translation>20 多年后</translation>
    </message>
    <message>
        <source>less than %1 points a year</source>
        <translation>每年不到 %1 个百分点</translation>
    </message>
    <message>
        <source>not before %1</source>
        <comment>a year</comment>
        <translation>最早%1年</translation>
    </message>
</context>
<context>
    <name>WarningSettings</name>
    <message>
        <source>%1&apos;s power manager warns on this desktop.</source>
        <translation>在此桌面上，%1 的电源管理会发出警告。</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>始终</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>电量低</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>充电上限</translation>
    </message>
    <message>
        <source>Command for battery low</source>
        <translation>电量低时的命令</translation>
    </message>
    <message>
        <source>Command for full</source>
        <translation>充满时的命令</translation>
    </message>
    <message>
        <source>Command for nearly empty</source>
        <translation>电量即将耗尽时的命令</translation>
    </message>
    <message>
        <source>Command for the charge limit</source>
        <translation>达到充电上限时的命令</translation>
    </message>
    <message>
        <source>Command for very low</source>
        <translation>电量极低时的命令</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>已充满</translation>
    </message>
    <message>
        <source>Nearly empty</source>
        <translation>即将耗尽</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>从不</translation>
    </message>
    <message>
        <source>Percentage for battery low</source>
        <translation>电量低的百分比</translation>
    </message>
    <message>
        <source>Percentage for full</source>
        <translation>充满的百分比</translation>
    </message>
    <message>
        <source>Percentage for nearly empty</source>
        <translation>即将耗尽的百分比</translation>
    </message>
    <message>
        <source>Percentage for the charge limit</source>
        <translation>充电上限的百分比</translation>
    </message>
    <message>
        <source>Percentage for very low</source>
        <translation>电量极低的百分比</translation>
    </message>
    <message>
        <source>Unless the desktop warns</source>
        <translation>桌面未发出警告时</translation>
    </message>
    <message>
        <source>Very low</source>
        <translation>电量极低</translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>%1 left</source>
        <comment>a percentage</comment>
        <translation>剩余 %1</translation>
    </message>
    <message numerus="yes">
        <source>About %1 minutes left</source>
        <translation>
            <numerusform>剩余约 %1 分钟</numerusform>
        </translation>
    </message>
    <message>
        <source>About a minute left</source>
        <translation>剩余约 1 分钟</translation>
    </message>
    <message>
        <source>Battery full</source>
        <translation>电池已充满</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>电池电量低</translation>
    </message>
    <message>
        <source>Battery nearly empty</source>
        <translation>电池电量即将耗尽</translation>
    </message>
    <message>
        <source>Battery very low</source>
        <translation>电池电量极低</translation>
    </message>
    <message>
        <source>Charge limit reached</source>
        <translation>已达到充电上限</translation>
    </message>
</context>
<context>
    <name>WearChart</name>
    <message>
        <source>Battery %1</source>
        <translation>电池 %1</translation>
    </message>
    <message>
        <source>Design capacity %1</source>
        <translation>设计容量 %1</translation>
    </message>
    <message>
        <source>First full charge %1</source>
        <translation>首次完全充电容量 %1</translation>
    </message>
    <message>
        <source>No snapshots yet: one is saved each day.</source>
        <translation>还没有快照：每天会保存一个。</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryPage</name>
    <message>
        <source>Batteries</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>电量</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>电脑</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健康度</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>无电池</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryView</name>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>电量</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>电脑</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健康度</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryWindow</name>
    <message>
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>全部复制</translation>
    </message>
</context>
<context>
    <name>quindle::CompareDialog</name>
    <message>
        <source>Compare Snapshots</source>
        <translation>比较快照</translation>
    </message>
</context>
<context>
    <name>quindle::DetailsPage</name>
    <message>
        <source>&amp;Copy as Text</source>
        <translation>复制为文本(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save as Machine File...</source>
        <translation>另存为机器文件(&amp;S)…</translation>
    </message>
    <message>
        <source>A file that the program can be run on in place of this computer, for reports of defects</source>
        <translation>程序可用来代替这台电脑运行的文件，用于报告缺陷</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>Machine files (*.plist)</source>
        <translation>机器文件 (*.plist)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Save as Machine File</source>
        <translation>另存为机器文件</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search details</source>
        <translation>搜索详细信息</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>包含序列号(&amp;N)</translation>
    </message>
</context>
<context>
    <name>quindle::FactRow</name>
    <message>
        <source>Click to switch the unit</source>
        <translation>点击以切换单位</translation>
    </message>
</context>
<context>
    <name>quindle::GeneralPreferencesController</name>
    <message>
        <source>&amp;Celsius</source>
        <translation>摄氏度(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Fahrenheit</source>
        <translation>华氏度(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Kelvin</source>
        <translation>开尔文(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation>参数(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>重置(&amp;R)</translation>
    </message>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>菜单栏</translation>
    </message>
    <message>
        <source>Menu bar &amp;text</source>
        <translation>菜单栏文本(&amp;T)</translation>
    </message>
    <message>
        <source>Menu bar text</source>
        <translation>菜单栏文本</translation>
    </message>
    <message>
        <source>Nothing can be sent: no statistics service is configured.</source>
        <translation>无法发送：未配置统计服务。</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Reset menu bar text</source>
        <translation>重置菜单栏文本</translation>
    </message>
    <message>
        <source>See &amp;exactly what is sent...</source>
        <translation>查看具体发送的内容(&amp;E)…</translation>
    </message>
    <message>
        <source>See exactly what is sent</source>
        <translation>查看具体发送的内容</translation>
    </message>
    <message>
        <source>Send battery &amp;health once a day</source>
        <translation>每天发送一次电池健康度(&amp;H)</translation>
    </message>
    <message>
        <source>Send battery health once a day</source>
        <translation>每天发送一次电池健康度</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>显示电池图标(&amp;I)</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>显示电池图标</translation>
    </message>
    <message>
        <source>Start when I l&amp;og in</source>
        <translation>登录时启动(&amp;O)</translation>
    </message>
    <message>
        <source>Start when I log in</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>The serial number is masked.</source>
        <translation>序列号已被遮盖。</translation>
    </message>
    <message>
        <source>This option can only be disabled in main application. Run it via &quot;Open Application&quot; from the menu</source>
        <translation>此选项只能在主应用程序中停用。请通过菜单中的“打开应用程序”运行</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
</context>
<context>
    <name>quindle::HelperPreferences</name>
    <message>
        <source>&amp;Celsius</source>
        <translation>摄氏度(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Fahrenheit</source>
        <translation>华氏度(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Kelvin</source>
        <translation>开尔文(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Mark battery data for automatic upload</source>
        <translation>标记电池数据以便自动上传(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation>参数(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Run in the background when I log in</source>
        <translation>登录后在后台运行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Standard title</source>
        <translation>标准标题(&amp;S)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>关闭(&amp;L)</translation>
    </message>
    <message>
        <source>C&amp;ustom text</source>
        <translation>自定义文本(&amp;U)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Custom menu bar text</source>
        <translation>自定义菜单栏文本</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>图标</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Mark battery data for automatic upload</source>
        <translation>标记电池数据以便自动上传</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>菜单栏文本</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>菜单栏</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Run in the background when I log in</source>
        <translation>登录后在后台运行</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>显示电池图标(&amp;I)</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>显示电池图标</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>This mark alone sends nothing. The daily upload is switched in Preferences, General.</source>
        <translation>仅有此标记不会发送任何内容。每日上传的开关在设置的“通用”中。</translation>
    </message>
</context>
<context>
    <name>quindle::HistoryPage</name>
    <message>
        <source>&amp;Charge</source>
        <translation>电量(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>导出(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Power</source>
        <translation>功率(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>保存图片(&amp;S)…</translation>
    </message>
    <message>
        <source>Charge, %1</source>
        <translation>电量，%1</translation>
    </message>
    <message>
        <source>Drawings (*.svg)</source>
        <translation>矢量图 (*.svg)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Full charge, mAh</source>
        <translation>完全充电容量（mAh）</translation>
    </message>
    <message>
        <source>Full charge, whole history</source>
        <translation>完全充电容量，全部历史记录</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健康度</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>还没有历史记录</translation>
    </message>
    <message>
        <source>One snapshot a day says how the battery wears</source>
        <translation>每天一个快照，了解电池的损耗</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>图片 (*.png)</translation>
    </message>
    <message>
        <source>Power, %1</source>
        <translation>功率，%1</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>数值类型</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>时间范围</translation>
    </message>
    <message>
        <source>Recording is off, so nothing is added.</source>
        <translation>记录已关闭，不会添加新内容。</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>保存图片</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Settings of recording</source>
        <translation>记录设置</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>表格 (*.csv)</translation>
    </message>
    <message>
        <source>With a probability of 95 % between %1 and %2 points a year</source>
        <translation>95% 的概率在每年 %1 到 %2 个百分点之间</translation>
    </message>
    <message>
        <source>asleep left open</source>
        <translation>空白为睡眠</translation>
    </message>
    <message>
        <source>charging shaded</source>
        <translation>阴影为充电</translation>
    </message>
    <message>
        <source>older values are means</source>
        <translation>较早的值为平均值</translation>
    </message>
    <message>
        <source>pale from UPower</source>
        <translation>浅色来自 UPower</translation>
    </message>
</context>
<context>
    <name>quindle::HistorySettingsView</name>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Delete History...</source>
        <translation>删除历史记录(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>保留(&amp;K)</translation>
    </message>
    <message>
        <source>Delete History</source>
        <translation>删除历史记录</translation>
    </message>
    <message>
        <source>Delete all snapshots, and all recorded charge and power?</source>
        <translation>要删除所有快照以及所有已记录的电量和功率吗？</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>It stays on this computer.</source>
        <translation>数据只保存在这台电脑上。</translation>
    </message>
    <message>
        <source>Keep charge and power</source>
        <translation>电量和功率保留时间</translation>
    </message>
    <message>
        <source>Record charge, po&amp;wer and a daily snapshot</source>
        <translation>记录电量、功率和每日快照(&amp;W)</translation>
    </message>
    <message>
        <source>Record charge, power and a daily snapshot</source>
        <translation>记录电量、功率和每日快照</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>此操作无法撤销。</translation>
    </message>
</context>
<context>
    <name>quindle::MenuBarPreferencesController</name>
    <message>
        <source>&amp;Icon only</source>
        <translation>仅图标(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;One wide picture with the text</source>
        <translation>一张包含文本的宽图片(&amp;O)</translation>
    </message>
    <message>
        <source>Icon, with text &amp;beside it</source>
        <translation>图标，旁边显示文本(&amp;B)</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>菜单栏</translation>
    </message>
    <message>
        <source>Menu Bar &amp;Text...</source>
        <translation>菜单栏文本(&amp;T)…</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>菜单栏文本</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>菜单栏</translation>
    </message>
    <message>
        <source>Not every panel has room for text. The text is always in the tool tip and in the menu. A panel that shows squares only shows the charge as a number instead of a wide picture.</source>
        <translation>并非每个面板都有空间显示文本。工具提示和菜单中始终有此文本。只显示方形图标的面板会以数字显示电量，而不显示宽图片。</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>显示方式</translation>
    </message>
    <message>
        <source>What &amp;suits the panel</source>
        <translation>适合面板的方式(&amp;S)</translation>
    </message>
</context>
<context>
    <name>quindle::NoBatteryView</name>
    <message>
        <source>Computer</source>
        <translation>电脑</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>无电池</translation>
    </message>
</context>
<context>
    <name>quindle::ParameterPopover</name>
    <message>
        <source>%1, %2, now %3</source>
        <translation>%1，%2，当前为%3</translation>
    </message>
    <message>
        <source>Choose a parameter to insert it</source>
        <translation>选择要插入的参数</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Parameters of the menu bar text</source>
        <translation>菜单栏文本的参数</translation>
    </message>
</context>
<context>
    <name>quindle::PreferencesToolbar</name>
    <message>
        <source>Panes</source>
        <translation>设置面板</translation>
    </message>
</context>
<context>
    <name>quindle::SentDataDialog</name>
    <message>
        <source>Nothing would be sent: no host of the statistics service is configured.</source>
        <translation>不会发送任何内容：未配置统计服务的主机。</translation>
    </message>
    <message>
        <source>This is what would be sent now, once a day at most:</source>
        <translation>现在会发送以下内容，每天最多一次：</translation>
    </message>
    <message>
        <source>What is sent</source>
        <translation>发送的内容</translation>
    </message>
</context>
<context>
    <name>quindle::SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>quindle::Sidebar</name>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotView</name>
    <message>
        <source>Snapshots</source>
        <translation>快照</translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotsPage</name>
    <message>
        <source>&amp;Compare</source>
        <translation>比较(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>导出(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>导入(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Save Now</source>
        <translation>立即保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>Exported</source>
        <translation>已导出</translation>
    </message>
    <message>
        <source>No snapshots yet</source>
        <translation>还没有快照</translation>
    </message>
    <message>
        <source>Reading the snapshots</source>
        <translation>正在读取快照</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>快照</translation>
    </message>
    <message>
        <source>There is no battery to save a snapshot of</source>
        <translation>没有可保存快照的电池</translation>
    </message>
    <message>
        <source>Two snapshots that are selected, beside each other</source>
        <translation>并排显示两个所选快照</translation>
    </message>
    <message>
        <source>Undo deleting</source>
        <translation>撤销删除</translation>
    </message>
</context>
<context>
    <name>quindle::SortHeader</name>
    <message>
        <source>Sort</source>
        <translation>排序</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>按%1排序</translation>
    </message>
    <message>
        <source>Sorted by %1, %2</source>
        <translation>已按%1排序，%2</translation>
    </message>
    <message>
        <source>ascending</source>
        <translation>升序</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>降序</translation>
    </message>
</context>
<context>
    <name>quindle::TitlePreview</name>
    <message>
        <source>Now shows</source>
        <translation>当前显示</translation>
    </message>
    <message>
        <source>Now shows %1</source>
        <translation>当前显示：%1</translation>
    </message>
    <message>
        <source>Would show</source>
        <translation>将显示</translation>
    </message>
    <message>
        <source>Would show %1</source>
        <translation>将显示：%1</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>无文本</translation>
    </message>
    <message>
        <source>no text without a battery</source>
        <translation>没有电池，无文本</translation>
    </message>
    <message>
        <source>nothing, without a panel</source>
        <translation>无（没有面板）</translation>
    </message>
    <message>
        <source>the icon alone</source>
        <translation>仅图标</translation>
    </message>
    <message>
        <source>the number %1</source>
        <translation>数字 %1</translation>
    </message>
</context>
<context>
    <name>quindle::UpdatePreferencesController</name>
    <message>
        <source>Quindle Helper does not look for updates by itself.</source>
        <translation>Quindle Helper 不会自行检查更新。</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
</context>
<context>
    <name>quindle::WarningSettingsView</name>
    <message>
        <source>A program to run then, with the level, the percentage and the state as arguments</source>
        <translation>届时运行的程序，以级别、百分比和状态作为参数</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Auto: the limit that the computer reports</source>
        <translation>自动：电脑报告的上限</translation>
    </message>
    <message>
        <source>Command to run then</source>
        <translation>届时运行的命令</translation>
    </message>
    <message>
        <source>No power manager warns on this desktop.</source>
        <translation>在此桌面上没有电源管理发出警告。</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>警告</translation>
    </message>
</context>
</TS>
