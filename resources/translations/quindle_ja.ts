<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
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
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>電源</translation>
    </message>
    <message>
        <source>Power source %1</source>
        <translation>電源%1</translation>
    </message>
    <message>
        <source>Registry: %1</source>
        <translation>レジストリ: %1</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
</context>
<context>
    <name>Facts</name>
    <message>
        <source>%1 Watts</source>
        <translation>%1 W</translation>
    </message>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation>
            <numerusform>%1回</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1日</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 months</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1か月</numerusform>
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
        <translation>%1年</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>1回</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>電源アダプター</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>使用年数</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>バッテリー%1</translation>
    </message>
    <message>
        <source>Battery age</source>
        <translation>バッテリーの使用年数</translation>
    </message>
    <message>
        <source>Battery device</source>
        <translation>バッテリーのデバイス</translation>
    </message>
    <message>
        <source>Battery fully charged</source>
        <translation>バッテリーはフル充電です</translation>
    </message>
    <message>
        <source>Battery made by</source>
        <translation>バッテリーの製造元</translation>
    </message>
    <message>
        <source>Battery usage</source>
        <translation>消費電力</translation>
    </message>
    <message>
        <source>Built %1</source>
        <translation>製造日: %1</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>計算中…</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>充電残量</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>充電の上限</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>充電済み</translation>
    </message>
    <message>
        <source>Chargin with</source>
        <translation>充電電力</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>充電中</translation>
    </message>
    <message>
        <source>Charging with</source>
        <translation>充電電力</translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation>充電中…</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>Computer age</source>
        <translation>コンピューターの使用年数</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>非常に低い</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>充放電回数</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Discharging</source>
        <translation>放電中</translation>
    </message>
    <message>
        <source>Discharging with</source>
        <translation>放電電力</translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation>放電中…</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>障害</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>普通</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>フル</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>フル充電容量</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>良好</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健全性</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高い</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低い</translation>
    </message>
    <message>
        <source>Made by</source>
        <translation>製造元</translation>
    </message>
    <message>
        <source>Manufactured %1</source>
        <translation>製造日: %1</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>No Errors</source>
        <translation>エラーなし</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>バッテリーなし</translation>
    </message>
    <message>
        <source>No design capacity</source>
        <translation>設計容量なし</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Not known</source>
        <comment>the health</comment>
        <translation>不明</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>不良</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>電力</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>The actual capacity the battery had after it left the factory. (reported by the manufacturer)</source>
        <translation>工場出荷後のバッテリーの実際の容量（製造元による値）。</translation>
    </message>
    <message>
        <source>The capacity the battery reports it had after it left the factory. (stored in the Firmware)</source>
        <translation>バッテリーが報告する工場出荷後の容量（ファームウェアに保存された値）。</translation>
    </message>
    <message>
        <source>The number of charge/discharge cycles the battery has experienced.</source>
        <translation>バッテリーがこれまでに充放電された回数。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Time until empty</source>
        <translation>空になるまで</translation>
    </message>
    <message>
        <source>Time until full</source>
        <translation>フル充電まで</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
</context>
<context>
    <name>HistoryRange</name>
    <message>
        <source>&amp;All</source>
        <translation>すべて(&amp;A)</translation>
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
        <translation>週(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>年(&amp;Y)</translation>
    </message>
    <message>
        <source>last 24 hours</source>
        <translation>過去24時間</translation>
    </message>
    <message>
        <source>last 30 days</source>
        <translation>過去30日間</translation>
    </message>
    <message>
        <source>last 365 days</source>
        <translation>過去365日間</translation>
    </message>
    <message>
        <source>last 7 days</source>
        <translation>過去7日間</translation>
    </message>
    <message>
        <source>whole history</source>
        <translation>全履歴</translation>
    </message>
</context>
<context>
    <name>HistorySettings</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1日</numerusform>
        </translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1年</translation>
    </message>
    <message>
        <source>10 years</source>
        <translation>10年</translation>
    </message>
    <message>
        <source>2 years</source>
        <translation>2年</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>30日</translation>
    </message>
    <message>
        <source>5 years</source>
        <translation>5年</translation>
    </message>
    <message>
        <source>90 days</source>
        <translation>90日</translation>
    </message>
    <message>
        <source>For ever</source>
        <translation>無期限</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Menu Bar Text...</source>
        <translation>メニューバーのテキスト…</translation>
    </message>
    <message>
        <source>Open Application</source>
        <translation>アプリケーションを開く</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Show Battery...</source>
        <translation>バッテリーを表示…</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
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
        <translation>ja_JP</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Battery History</source>
        <translation>バッテリーの履歴</translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation>バッテリーの状態</translation>
    </message>
    <message>
        <source>Battery charge, health and time in the panel</source>
        <translation>バッテリーの残量、健全性、残り時間をパネルに表示</translation>
    </message>
    <message>
        <source>Battery charge, health and what becomes of them</source>
        <translation>バッテリーの残量と健全性、その移り変わり</translation>
    </message>
    <message>
        <source>Charge, power, remaining time, health, cycles, age and temperature</source>
        <translation>充電残量、電力、残り時間、健全性、充放電回数、使用年数、温度</translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>FORMAT</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere unless you allow it</source>
        <translation>許可しない限り、どこにも何も送信しません</translation>
    </message>
    <message>
        <source>Quindle shows everything that the batteries of your portable computer report, in one window. Its companion, Quindle Helper, sits in the tray of your panel with a title made from your own template and an icon; a click there opens the battery view.</source>
        <translation>Quindle は、ノートパソコンのバッテリーが報告するすべての情報を1つのウィンドウに表示します。付属の Quindle Helper は、独自のテンプレートで作ったタイトルとアイコンでパネルのトレイに常駐し、クリックするとバッテリー表示が開きます。</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>書式</translation>
    </message>
    <message>
        <source>Several batteries combined into one</source>
        <translation>複数のバッテリーを1つにまとめて表示</translation>
    </message>
    <message>
        <source>Trays on X11 and on Wayland</source>
        <translation>X11 と Wayland のトレイ</translation>
    </message>
    <message>
        <source>battery charge, health and time in the panel</source>
        <translation>バッテリーの残量、健全性、残り時間をパネルに表示</translation>
    </message>
    <message>
        <source>battery charge, health and what becomes of them</source>
        <translation>バッテリーの残量と健全性、その移り変わり</translation>
    </message>
    <message>
        <source>battery;power;charge;health;laptop;</source>
        <translation>バッテリー;電池;電源;充電;残量;健全性;ノートパソコン;battery;</translation>
    </message>
    <message>
        <source>battery;power;charge;health;wear;laptop;</source>
        <translation>バッテリー;電池;電源;充電;残量;健全性;劣化;ノートパソコン;battery;</translation>
    </message>
    <message>
        <source>print the battery as Quindle Helper sees it</source>
        <translation>Quindle Helper から見たバッテリーの情報を出力</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Battery</source>
        <translation>バッテリー</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>スナップショット</translation>
    </message>
</context>
<context>
    <name>Placeholders</name>
    <message>
        <source>Charge cycles</source>
        <translation>充放電回数</translation>
    </message>
    <message>
        <source>Charge in percent</source>
        <translation>充電残量（パーセント）</translation>
    </message>
    <message>
        <source>Charging or discharging</source>
        <translation>充電中または放電中</translation>
    </message>
    <message>
        <source>Current in milliamperes</source>
        <translation>電流（ミリアンペア）</translation>
    </message>
    <message>
        <source>Power in watts</source>
        <translation>電力（ワット）</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <translation>残り時間</translation>
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
        <translation>新しいバージョンは、このプログラムのインストール元から入手できます。</translation>
    </message>
    <message>
        <source>Nothing would be sent now: a value that names the battery is missing.</source>
        <translation>今は何も送信されません: バッテリーを特定する値がありません。</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>This copy was built on this computer. Newer source, built again, updates it.</source>
        <translation>このプログラムはこのコンピューターでビルドされました。新しいソースからビルドし直すと更新されます。</translation>
    </message>
    <message>
        <source>This is the package &quot;%1&quot;. Newer versions of it are installed with %2, as those of the other packages of this system.</source>
        <translation>これはパッケージ「%1」です。新しいバージョンは、このシステムのほかのパッケージと同じく %2 でインストールされます。</translation>
    </message>
    <message>
        <source>Unknown</source>
        <comment>the version</comment>
        <translation>不明</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>title of the pane</comment>
        <translation>アップデート</translation>
    </message>
</context>
<context>
    <name>SampleChart</name>
    <message>
        <source>Charge</source>
        <translation>充電残量</translation>
    </message>
    <message>
        <source>Nothing was recorded in this time.</source>
        <translation>この期間の記録はありません。</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>電力</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>充電中</translation>
    </message>
    <message>
        <source>discharging</source>
        <translation>放電中</translation>
    </message>
    <message>
        <source>from UPower</source>
        <translation>UPower から</translation>
    </message>
    <message>
        <source>full</source>
        <translation>フル充電</translation>
    </message>
</context>
<context>
    <name>SnapshotFiles</name>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Archives of snapshots (*.qndarchive)</source>
        <translation>スナップショットのアーカイブ (*.qndarchive)</translation>
    </message>
    <message>
        <source>Export Snapshots</source>
        <translation>スナップショットをエクスポート</translation>
    </message>
    <message>
        <source>Import Snapshots</source>
        <translation>スナップショットをインポート</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>表 (*.csv)</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>シリアル番号を含める(&amp;N)</translation>
    </message>
</context>
<context>
    <name>Snapshots</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1日</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points</source>
        <comment>of health, with one decimal</comment>
        <translation>%1ポイント</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>スナップショット%1件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots deleted</source>
        <translation>
            <numerusform>スナップショットを%1件削除しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots imported</source>
        <translation>
            <numerusform>スナップショットを%1件インポートしました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots restored</source>
        <translation>
            <numerusform>スナップショットを%1件復元しました</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1日</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>スナップショット1件</translation>
    </message>
    <message>
        <source>1 snapshot deleted</source>
        <translation>スナップショットを1件削除しました</translation>
    </message>
    <message>
        <source>1 snapshot imported</source>
        <translation>スナップショットを1件インポートしました</translation>
    </message>
    <message>
        <source>1 snapshot restored</source>
        <translation>スナップショットを1件復元しました</translation>
    </message>
    <message>
        <source>1 snapshot saved</source>
        <translation>スナップショットを1件保存しました</translation>
    </message>
    <message>
        <source>All snapshots deleted</source>
        <translation>すべてのスナップショットを削除しました</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>バッテリー</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>充放電回数</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>設計容量</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>フル充電容量</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健全性</translation>
    </message>
    <message>
        <source>There is no folder for snapshots: the user has no home folder</source>
        <translation>スナップショット用のフォルダーがありません: ユーザーにホームフォルダーがありません</translation>
    </message>
</context>
<context>
    <name>Trend</name>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation>
            <numerusform>充放電%1回</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1日間</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points a year</source>
        <translation>年間%1ポイント</translation>
    </message>
    <message>
        <source>%1 so far</source>
        <comment>days</comment>
        <translation>これまでの記録は%1</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>a pace, days</comment>
        <translation>%1（%2の記録から）</translation>
    </message>
    <message>
        <source>%1, from %2 and %3</source>
        <comment>a pace, days, cycles</comment>
        <translation>%1（%2、%3の記録から）</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>充放電1回</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1日間</translation>
    </message>
    <message>
        <source>80 %</source>
        <translation>80%</translation>
    </message>
    <message>
        <source>80 % of its first full charge</source>
        <translation>最初のフル充電容量の80%</translation>
    </message>
    <message>
        <source>Already under %1</source>
        <translation>すでに%1を下回っています</translation>
    </message>
    <message>
        <source>At this pace %1 %2</source>
        <comment>a percentage, when</comment>
        <translation>このペースで%1になるのは%2</translation>
    </message>
    <message>
        <source>No wear to be seen in %1</source>
        <comment>days</comment>
        <translation>%1の記録では劣化は見られません</translation>
    </message>
    <message>
        <source>Not enough history yet (needs 60 days)</source>
        <translation>履歴がまだ足りません（60日分必要）</translation>
    </message>
    <message>
        <source>about now</source>
        <translation>今ごろ</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a month with its year</comment>
        <translation>%1ごろ</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a year</comment>
        <translation>%1年ごろ</translation>
    </message>
    <message>
        <source>between %1 and %2</source>
        <comment>years</comment>
        <translation>%1年から%2年の間</translation>
    </message>
    <message>
        <source>in early %1</source>
        <comment>a year</comment>
        <translation>%1年の初めごろ</translation>
    </message>
    <message>
        <source>in late %1</source>
        <comment>a year</comment>
        <translation>%1年の終わりごろ</translation>
    </message>
    <message>
        <source>in mid-%1</source>
        <comment>a year</comment>
        <translation>%1年の半ばごろ</translation>
    </message>
    <message>
        <source>in more than 20 years</source>
        <translation>20年以上先</translation>
    </message>
    <message>
        <source>less than %1 points a year</source>
        <translation>年間%1ポイント未満</translation>
    </message>
    <message>
        <source>not before %1</source>
        <comment>a year</comment>
        <translation>%1年以降</translation>
    </message>
</context>
<context>
    <name>WarningSettings</name>
    <message>
        <source>%1&apos;s power manager warns on this desktop.</source>
        <translation>このデスクトップでは %1 の電源管理が警告します。</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>常に警告</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>バッテリー低下</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>充電の上限</translation>
    </message>
    <message>
        <source>Command for battery low</source>
        <translation>バッテリー低下時のコマンド</translation>
    </message>
    <message>
        <source>Command for full</source>
        <translation>フル充電時のコマンド</translation>
    </message>
    <message>
        <source>Command for nearly empty</source>
        <translation>残量がほぼ空のときのコマンド</translation>
    </message>
    <message>
        <source>Command for the charge limit</source>
        <translation>充電の上限に達したときのコマンド</translation>
    </message>
    <message>
        <source>Command for very low</source>
        <translation>残量が非常に少ないときのコマンド</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>フル充電</translation>
    </message>
    <message>
        <source>Nearly empty</source>
        <translation>ほぼ空</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>警告しない</translation>
    </message>
    <message>
        <source>Percentage for battery low</source>
        <translation>バッテリー低下とする残量（%）</translation>
    </message>
    <message>
        <source>Percentage for full</source>
        <translation>フル充電とする残量（%）</translation>
    </message>
    <message>
        <source>Percentage for nearly empty</source>
        <translation>ほぼ空とする残量（%）</translation>
    </message>
    <message>
        <source>Percentage for the charge limit</source>
        <translation>充電の上限（%）</translation>
    </message>
    <message>
        <source>Percentage for very low</source>
        <translation>非常に少ないとする残量（%）</translation>
    </message>
    <message>
        <source>Unless the desktop warns</source>
        <translation>デスクトップが警告しない場合</translation>
    </message>
    <message>
        <source>Very low</source>
        <translation>非常に少ない</translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>%1 left</source>
        <comment>a percentage</comment>
        <translation>残り%1</translation>
    </message>
    <message numerus="yes">
        <source>About %1 minutes left</source>
        <translation>
            <numerusform>残り約%1分</numerusform>
        </translation>
    </message>
    <message>
        <source>About a minute left</source>
        <translation>残り約1分</translation>
    </message>
    <message>
        <source>Battery full</source>
        <translation>バッテリーはフル充電です</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>バッテリー残量が少なくなっています</translation>
    </message>
    <message>
        <source>Battery nearly empty</source>
        <translation>バッテリーがほぼ空です</translation>
    </message>
    <message>
        <source>Battery very low</source>
        <translation>バッテリー残量が非常に少なくなっています</translation>
    </message>
    <message>
        <source>Charge limit reached</source>
        <translation>充電の上限に達しました</translation>
    </message>
</context>
<context>
    <name>WearChart</name>
    <message>
        <source>Battery %1</source>
        <translation>バッテリー%1</translation>
    </message>
    <message>
        <source>Design capacity %1</source>
        <translation>設計容量 %1</translation>
    </message>
    <message>
        <source>First full charge %1</source>
        <translation>最初のフル充電容量 %1</translation>
    </message>
    <message>
        <source>No snapshots yet: one is saved each day.</source>
        <translation>スナップショットはまだありません: 毎日1件保存されます。</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryPage</name>
    <message>
        <source>Batteries</source>
        <translation>バッテリー</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>バッテリー</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>充電残量</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健全性</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>バッテリーなし</translation>
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
        <translation>バッテリー</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>バッテリー</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>充電残量</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健全性</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryWindow</name>
    <message>
        <source>Battery</source>
        <translation>バッテリー</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>すべてコピー</translation>
    </message>
</context>
<context>
    <name>quindle::CompareDialog</name>
    <message>
        <source>Compare Snapshots</source>
        <translation>スナップショットの比較</translation>
    </message>
</context>
<context>
    <name>quindle::DetailsPage</name>
    <message>
        <source>&amp;Copy as Text</source>
        <translation>テキストとしてコピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save as Machine File...</source>
        <translation>マシンファイルとして保存(&amp;S)…</translation>
    </message>
    <message>
        <source>A file that the program can be run on in place of this computer, for reports of defects</source>
        <translation>不具合の報告用に、このコンピューターの代わりにプログラムが読み込めるファイル</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>コピーしました</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Machine files (*.plist)</source>
        <translation>マシンファイル (*.plist)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Save as Machine File</source>
        <translation>マシンファイルとして保存</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存しました</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search details</source>
        <translation>詳細を検索</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>シリアル番号を含める(&amp;N)</translation>
    </message>
</context>
<context>
    <name>quindle::FactRow</name>
    <message>
        <source>Click to switch the unit</source>
        <translation>クリックで単位を切り替え</translation>
    </message>
</context>
<context>
    <name>quindle::GeneralPreferencesController</name>
    <message>
        <source>&amp;Celsius</source>
        <translation>摂氏(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Fahrenheit</source>
        <translation>華氏(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Kelvin</source>
        <translation>ケルビン(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation>パラメーター(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>リセット(&amp;R)</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>メニューバー</translation>
    </message>
    <message>
        <source>Menu bar &amp;text</source>
        <translation>表示テキスト(&amp;T)</translation>
    </message>
    <message>
        <source>Menu bar text</source>
        <translation>メニューバーのテキスト</translation>
    </message>
    <message>
        <source>Nothing can be sent: no statistics service is configured.</source>
        <translation>何も送信できません: 統計サービスが設定されていません。</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>Reset menu bar text</source>
        <translation>メニューバーのテキストをリセット</translation>
    </message>
    <message>
        <source>See &amp;exactly what is sent...</source>
        <translation>送信される内容を確認(&amp;E)…</translation>
    </message>
    <message>
        <source>See exactly what is sent</source>
        <translation>送信される内容を確認</translation>
    </message>
    <message>
        <source>Send battery &amp;health once a day</source>
        <translation>バッテリーの健全性を1日1回送信(&amp;H)</translation>
    </message>
    <message>
        <source>Send battery health once a day</source>
        <translation>バッテリーの健全性を1日1回送信</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>バッテリーアイコンを表示(&amp;I)</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>バッテリーアイコンを表示</translation>
    </message>
    <message>
        <source>Start when I l&amp;og in</source>
        <translation>ログイン時に起動(&amp;O)</translation>
    </message>
    <message>
        <source>Start when I log in</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>統計</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>The serial number is masked.</source>
        <translation>シリアル番号は伏せてあります。</translation>
    </message>
    <message>
        <source>This option can only be disabled in main application. Run it via &quot;Open Application&quot; from the menu</source>
        <translation>この項目はメインのアプリケーションでのみ無効にできます。メニューの「アプリケーションを開く」から起動してください</translation>
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
        <translation>摂氏(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Fahrenheit</source>
        <translation>華氏(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Kelvin</source>
        <translation>ケルビン(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Mark battery data for automatic upload</source>
        <translation>バッテリーのデータを自動アップロードの対象にする(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation>パラメーター(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Run in the background when I log in</source>
        <translation>ログイン時にバックグラウンドで実行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Standard title</source>
        <translation>標準のタイトル(&amp;S)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>C&amp;ustom text</source>
        <translation>カスタムテキスト(&amp;U)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Custom menu bar text</source>
        <translation>メニューバーのカスタムテキスト</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>アイコン</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>Mark battery data for automatic upload</source>
        <translation>バッテリーのデータを自動アップロードの対象にする</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>メニューバーのテキスト</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>メニューバー</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>Run in the background when I log in</source>
        <translation>ログイン時にバックグラウンドで実行</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>バッテリーアイコンを表示(&amp;I)</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>バッテリーアイコンを表示</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>統計</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>This mark alone sends nothing. The daily upload is switched in Preferences, General.</source>
        <translation>この指定だけでは何も送信されません。毎日のアップロードは設定の「一般」で切り替えます。</translation>
    </message>
</context>
<context>
    <name>quindle::HistoryPage</name>
    <message>
        <source>&amp;Charge</source>
        <translation>充電残量(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>エクスポート(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Power</source>
        <translation>電力(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>画像を保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Charge, %1</source>
        <translation>充電残量、%1</translation>
    </message>
    <message>
        <source>Drawings (*.svg)</source>
        <translation>ベクター画像 (*.svg)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Full charge, mAh</source>
        <translation>フル充電容量（mAh）</translation>
    </message>
    <message>
        <source>Full charge, whole history</source>
        <translation>フル充電容量、全履歴</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健全性</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>履歴はまだありません</translation>
    </message>
    <message>
        <source>One snapshot a day says how the battery wears</source>
        <translation>毎日1件のスナップショットで、バッテリーの劣化がわかります</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>画像 (*.png)</translation>
    </message>
    <message>
        <source>Power, %1</source>
        <translation>電力、%1</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>期間</translation>
    </message>
    <message>
        <source>Recording is off, so nothing is added.</source>
        <translation>記録がオフのため、何も追加されません。</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>画像を保存</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存しました</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Settings of recording</source>
        <translation>記録の設定</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>表 (*.csv)</translation>
    </message>
    <message>
        <source>With a probability of 95 % between %1 and %2 points a year</source>
        <translation>95%の確率で年間%1～%2ポイント</translation>
    </message>
    <message>
        <source>asleep left open</source>
        <translation>空白はスリープ中</translation>
    </message>
    <message>
        <source>charging shaded</source>
        <translation>網かけは充電中</translation>
    </message>
    <message>
        <source>older values are means</source>
        <translation>古い値は平均値</translation>
    </message>
    <message>
        <source>pale from UPower</source>
        <translation>淡色は UPower から</translation>
    </message>
</context>
<context>
    <name>quindle::HistorySettingsView</name>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Delete History...</source>
        <translation>履歴を削除(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>保持(&amp;K)</translation>
    </message>
    <message>
        <source>Delete History</source>
        <translation>履歴を削除</translation>
    </message>
    <message>
        <source>Delete all snapshots, and all recorded charge and power?</source>
        <translation>すべてのスナップショットと、記録された充電残量と電力をすべて削除しますか？</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>It stays on this computer.</source>
        <translation>データはこのコンピューターに留まります。</translation>
    </message>
    <message>
        <source>Keep charge and power</source>
        <translation>充電残量と電力の保持期間</translation>
    </message>
    <message>
        <source>Record charge, po&amp;wer and a daily snapshot</source>
        <translation>充電残量、電力、毎日のスナップショットを記録(&amp;W)</translation>
    </message>
    <message>
        <source>Record charge, power and a daily snapshot</source>
        <translation>充電残量、電力、毎日のスナップショットを記録</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>この操作は元に戻せません。</translation>
    </message>
</context>
<context>
    <name>quindle::MenuBarPreferencesController</name>
    <message>
        <source>&amp;Icon only</source>
        <translation>アイコンのみ(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;One wide picture with the text</source>
        <translation>テキスト入りの横長の画像1つ(&amp;O)</translation>
    </message>
    <message>
        <source>Icon, with text &amp;beside it</source>
        <translation>アイコンと横にテキスト(&amp;B)</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>メニューバー</translation>
    </message>
    <message>
        <source>Menu Bar &amp;Text...</source>
        <translation>メニューバーのテキスト(&amp;T)…</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>メニューバーのテキスト</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>メニューバー</translation>
    </message>
    <message>
        <source>Not every panel has room for text. The text is always in the tool tip and in the menu. A panel that shows squares only shows the charge as a number instead of a wide picture.</source>
        <translation>すべてのパネルにテキストの場所があるわけではありません。テキストはツールチップとメニューには常に表示されます。正方形しか表示できないパネルでは、横長の画像の代わりに充電残量が数字で表示されます。</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>表示方法</translation>
    </message>
    <message>
        <source>What &amp;suits the panel</source>
        <translation>パネルに合わせる(&amp;S)</translation>
    </message>
</context>
<context>
    <name>quindle::NoBatteryView</name>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>バッテリーなし</translation>
    </message>
</context>
<context>
    <name>quindle::ParameterPopover</name>
    <message>
        <source>%1, %2, now %3</source>
        <translation>%1、%2、現在は%3</translation>
    </message>
    <message>
        <source>Choose a parameter to insert it</source>
        <translation>挿入するパラメーターを選択</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>Parameters of the menu bar text</source>
        <translation>メニューバーのテキスト用パラメーター</translation>
    </message>
</context>
<context>
    <name>quindle::PreferencesToolbar</name>
    <message>
        <source>Panes</source>
        <translation>設定パネル</translation>
    </message>
</context>
<context>
    <name>quindle::SentDataDialog</name>
    <message>
        <source>Nothing would be sent: no host of the statistics service is configured.</source>
        <translation>何も送信されません: 統計サービスのホストが設定されていません。</translation>
    </message>
    <message>
        <source>This is what would be sent now, once a day at most:</source>
        <translation>今送信されるとすれば次の内容です（最大で1日1回）:</translation>
    </message>
    <message>
        <source>What is sent</source>
        <translation>送信される内容</translation>
    </message>
</context>
<context>
    <name>quindle::SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>quindle::Sidebar</name>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotView</name>
    <message>
        <source>Snapshots</source>
        <translation>スナップショット</translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotsPage</name>
    <message>
        <source>&amp;Compare</source>
        <translation>比較(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>エクスポート(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>インポート(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Save Now</source>
        <translation>今すぐ保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Exported</source>
        <translation>エクスポートしました</translation>
    </message>
    <message>
        <source>No snapshots yet</source>
        <translation>スナップショットはまだありません</translation>
    </message>
    <message>
        <source>Reading the snapshots</source>
        <translation>スナップショットを読み込み中</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>There is no battery to save a snapshot of</source>
        <translation>スナップショットを保存できるバッテリーがありません</translation>
    </message>
    <message>
        <source>Two snapshots that are selected, beside each other</source>
        <translation>選択した2件のスナップショットを並べて表示</translation>
    </message>
    <message>
        <source>Undo deleting</source>
        <translation>削除を元に戻す</translation>
    </message>
</context>
<context>
    <name>quindle::SortHeader</name>
    <message>
        <source>Sort</source>
        <translation>並べ替え</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>%1で並べ替え</translation>
    </message>
    <message>
        <source>Sorted by %1, %2</source>
        <translation>%1で並べ替え済み、%2</translation>
    </message>
    <message>
        <source>ascending</source>
        <translation>昇順</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>降順</translation>
    </message>
</context>
<context>
    <name>quindle::TitlePreview</name>
    <message>
        <source>Now shows</source>
        <translation>現在の表示</translation>
    </message>
    <message>
        <source>Now shows %1</source>
        <translation>現在の表示: %1</translation>
    </message>
    <message>
        <source>Would show</source>
        <translation>変更後の表示</translation>
    </message>
    <message>
        <source>Would show %1</source>
        <translation>変更後の表示: %1</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>テキストなし</translation>
    </message>
    <message>
        <source>no text without a battery</source>
        <translation>バッテリーがないためテキストなし</translation>
    </message>
    <message>
        <source>nothing, without a panel</source>
        <translation>なし（パネルがありません）</translation>
    </message>
    <message>
        <source>the icon alone</source>
        <translation>アイコンのみ</translation>
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
        <translation>Quindle Helper は自動ではアップデートを確認しません。</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
</context>
<context>
    <name>quindle::WarningSettingsView</name>
    <message>
        <source>A program to run then, with the level, the percentage and the state as arguments</source>
        <translation>そのとき実行するプログラム（段階、パーセント、状態が引数として渡されます）</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Auto: the limit that the computer reports</source>
        <translation>自動: コンピューターが報告する上限</translation>
    </message>
    <message>
        <source>Command to run then</source>
        <translation>そのとき実行するコマンド</translation>
    </message>
    <message>
        <source>No power manager warns on this desktop.</source>
        <translation>このデスクトップで警告する電源管理はありません。</translation>
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
