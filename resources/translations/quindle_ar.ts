<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Dates</name>
    <message>
        <source>MMM d</source>
        <comment>as date formats write it</comment>
        <translation>d MMM</translation>
    </message>
    <message>
        <source>MMMM yyyy</source>
        <comment>as date formats write it</comment>
        <translation>MMMM yyyy</translation>
    </message>
    <message>
        <source>d MMM</source>
        <comment>as date formats write it</comment>
        <translation>d MMM</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <comment>as date formats write it</comment>
        <translation>d MMM yyyy</translation>
    </message>
</context>
<context>
    <name>Details</name>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>مصدر الطاقة</translation>
    </message>
    <message>
        <source>Power source %1</source>
        <translation>مصدر الطاقة %1</translation>
    </message>
    <message>
        <source>Registry: %1</source>
        <translation>سجل النظام: %1</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
</context>
<context>
    <name>Facts</name>
    <message>
        <source>%1 Watts</source>
        <translation>%1 واط</translation>
    </message>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation>
            <numerusform>%1 دورة</numerusform>
            <numerusform>دورة واحدة</numerusform>
            <numerusform>دورتان</numerusform>
            <numerusform>%1 دورات</numerusform>
            <numerusform>%1 دورة</numerusform>
            <numerusform>%1 دورة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1 يوم</numerusform>
            <numerusform>يوم واحد</numerusform>
            <numerusform>يومان</numerusform>
            <numerusform>%1 أيام</numerusform>
            <numerusform>%1 يومًا</numerusform>
            <numerusform>%1 يوم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 months</source>
        <comment>age</comment>
        <translation>
            <numerusform>%1 شهر</numerusform>
            <numerusform>شهر واحد</numerusform>
            <numerusform>شهران</numerusform>
            <numerusform>%1 أشهر</numerusform>
            <numerusform>%1 شهرًا</numerusform>
            <numerusform>%1 شهر</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>capacities</comment>
        <translation>%1 من ⁦%2⁩</translation>
    </message>
    <message>
        <source>%1 years</source>
        <comment>age with one decimal</comment>
        <translation>%1 سنة</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>دورة واحدة</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>محوّل الطاقة</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>العمر</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>البطارية %1</translation>
    </message>
    <message>
        <source>Battery age</source>
        <translation>عمر البطارية</translation>
    </message>
    <message>
        <source>Battery device</source>
        <translation>جهاز البطارية</translation>
    </message>
    <message>
        <source>Battery fully charged</source>
        <translation>البطارية مشحونة بالكامل</translation>
    </message>
    <message>
        <source>Battery made by</source>
        <translation>صانع البطارية</translation>
    </message>
    <message>
        <source>Battery usage</source>
        <translation>استهلاك الطاقة</translation>
    </message>
    <message>
        <source>Built %1</source>
        <translation>تاريخ الصنع: %1</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>جارٍ الحساب…</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>الشحن</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>حد الشحن</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>مشحونة</translation>
    </message>
    <message>
        <source>Chargin with</source>
        <translation>قدرة الشحن</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>قيد الشحن</translation>
    </message>
    <message>
        <source>Charging with</source>
        <translation>قدرة الشحن</translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation>جارٍ الشحن…</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>الكمبيوتر</translation>
    </message>
    <message>
        <source>Computer age</source>
        <translation>عمر الكمبيوتر</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>حرج</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>عدد الدورات</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>الجهاز</translation>
    </message>
    <message>
        <source>Discharging</source>
        <translation>قيد التفريغ</translation>
    </message>
    <message>
        <source>Discharging with</source>
        <translation>قدرة التفريغ</translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation>جارٍ التفريغ…</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>الأعطال</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>متوسطة</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>ممتلئ</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>سعة الشحن الكامل</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>جيدة</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>الصحة</translation>
    </message>
    <message>
        <source>High</source>
        <translation>مرتفع</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>منخفض</translation>
    </message>
    <message>
        <source>Made by</source>
        <translation>الصانع</translation>
    </message>
    <message>
        <source>Manufactured %1</source>
        <translation>تاريخ الصنع: %1</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>الطراز</translation>
    </message>
    <message>
        <source>No Errors</source>
        <translation>لا توجد أخطاء</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>لا توجد بطارية</translation>
    </message>
    <message>
        <source>No design capacity</source>
        <translation>لا توجد سعة تصميمية</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>عادي</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Not known</source>
        <comment>the health</comment>
        <translation>غير معروفة</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>سيئة</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>القدرة</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>الرقم التسلسلي</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>درجة الحرارة</translation>
    </message>
    <message>
        <source>The actual capacity the battery had after it left the factory. (reported by the manufacturer)</source>
        <translation>السعة الفعلية للبطارية عند خروجها من المصنع (حسب الشركة الصانعة).</translation>
    </message>
    <message>
        <source>The capacity the battery reports it had after it left the factory. (stored in the Firmware)</source>
        <translation>السعة التي تبلغ البطارية أنها كانت لها عند خروجها من المصنع (مخزّنة في البرنامج الثابت).</translation>
    </message>
    <message>
        <source>The number of charge/discharge cycles the battery has experienced.</source>
        <translation>عدد دورات الشحن والتفريغ التي مرّت بها البطارية.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>الوقت</translation>
    </message>
    <message>
        <source>Time until empty</source>
        <translation>الوقت حتى النفاد</translation>
    </message>
    <message>
        <source>Time until full</source>
        <translation>الوقت حتى الامتلاء</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
</context>
<context>
    <name>HistoryRange</name>
    <message>
        <source>&amp;All</source>
        <translation>ال&amp;كل</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;يوم</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;شهر</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;أسبوع</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;سنة</translation>
    </message>
    <message>
        <source>last 24 hours</source>
        <translation>آخر 24 ساعة</translation>
    </message>
    <message>
        <source>last 30 days</source>
        <translation>آخر 30 يومًا</translation>
    </message>
    <message>
        <source>last 365 days</source>
        <translation>آخر 365 يومًا</translation>
    </message>
    <message>
        <source>last 7 days</source>
        <translation>آخر 7 أيام</translation>
    </message>
    <message>
        <source>whole history</source>
        <translation>السجل كله</translation>
    </message>
</context>
<context>
    <name>HistorySettings</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 يوم</numerusform>
            <numerusform>يوم واحد</numerusform>
            <numerusform>يومان</numerusform>
            <numerusform>%1 أيام</numerusform>
            <numerusform>%1 يومًا</numerusform>
            <numerusform>%1 يوم</numerusform>
        </translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>سنة واحدة</translation>
    </message>
    <message>
        <source>10 years</source>
        <translation>10 سنوات</translation>
    </message>
    <message>
        <source>2 years</source>
        <translation>سنتان</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>30 يومًا</translation>
    </message>
    <message>
        <source>5 years</source>
        <translation>5 سنوات</translation>
    </message>
    <message>
        <source>90 days</source>
        <translation>90 يومًا</translation>
    </message>
    <message>
        <source>For ever</source>
        <translation>دائمًا</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Details</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>Menu Bar Text...</source>
        <translation>نص شريط القائمة…</translation>
    </message>
    <message>
        <source>Open Application</source>
        <translation>فتح التطبيق</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Show Battery...</source>
        <translation>إظهار البطارية…</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>الإصدار %1</translation>
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
        <translation>ar_LY</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Battery History</source>
        <translation>سجل البطارية</translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation>حالة البطارية</translation>
    </message>
    <message>
        <source>Battery charge, health and time in the panel</source>
        <translation>شحن البطارية وصحتها والوقت المتبقي في اللوحة</translation>
    </message>
    <message>
        <source>Battery charge, health and what becomes of them</source>
        <translation>شحن البطارية وصحتها وتطورهما</translation>
    </message>
    <message>
        <source>Charge, power, remaining time, health, cycles, age and temperature</source>
        <translation>الشحن والقدرة والوقت المتبقي والصحة والدورات والعمر ودرجة الحرارة</translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>تاريخ</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>مجلد</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ملف</translation>
    </message>
    <message>
        <source>FORMAT</source>
        <translation>تنسيق</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere unless you allow it</source>
        <translation>لا يُرسل أي شيء إلى أي مكان من دون إذن</translation>
    </message>
    <message>
        <source>Quindle shows everything that the batteries of your portable computer report, in one window. Its companion, Quindle Helper, sits in the tray of your panel with a title made from your own template and an icon; a click there opens the battery view.</source>
        <translation>يعرض Quindle كل ما تبلغ عنه بطاريات الكمبيوتر المحمول في نافذة واحدة. أما التطبيق المرافق Quindle Helper فيوجد في درج اللوحة بأيقونة وعنوان وفق قالب مخصص؛ ويؤدي النقر عليه إلى فتح عرض البطارية.</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>الصيغة</translation>
    </message>
    <message>
        <source>Several batteries combined into one</source>
        <translation>جمع عدة بطاريات في بطارية واحدة</translation>
    </message>
    <message>
        <source>Trays on X11 and on Wayland</source>
        <translation>الأدراج في X11 وWayland</translation>
    </message>
    <message>
        <source>battery charge, health and time in the panel</source>
        <translation>شحن البطارية وصحتها والوقت المتبقي في اللوحة</translation>
    </message>
    <message>
        <source>battery charge, health and what becomes of them</source>
        <translation>شحن البطارية وصحتها وتطورهما</translation>
    </message>
    <message>
        <source>battery;power;charge;health;laptop;</source>
        <translation>بطارية;طاقة;شحن;صحة;حاسوب محمول;لابتوب;battery;</translation>
    </message>
    <message>
        <source>battery;power;charge;health;wear;laptop;</source>
        <translation>بطارية;طاقة;شحن;صحة;تآكل;حاسوب محمول;لابتوب;battery;</translation>
    </message>
    <message>
        <source>print the battery as Quindle Helper sees it</source>
        <translation>طباعة البطارية كما يراها Quindle Helper</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Battery</source>
        <translation>البطارية</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>اللقطات</translation>
    </message>
</context>
<context>
    <name>Placeholders</name>
    <message>
        <source>Charge cycles</source>
        <translation>دورات الشحن</translation>
    </message>
    <message>
        <source>Charge in percent</source>
        <translation>الشحن بالنسبة المئوية</translation>
    </message>
    <message>
        <source>Charging or discharging</source>
        <translation>الشحن أو التفريغ</translation>
    </message>
    <message>
        <source>Current in milliamperes</source>
        <translation>التيار بالملي أمبير</translation>
    </message>
    <message>
        <source>Power in watts</source>
        <translation>القدرة بالواط</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <translation>الوقت المتبقي</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>درجة الحرارة</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Newer versions come from where this copy was installed from.</source>
        <translation>تأتي الإصدارات الأحدث من المصدر الذي ثُبّتت منه هذه النسخة.</translation>
    </message>
    <message>
        <source>Nothing would be sent now: a value that names the battery is missing.</source>
        <translation>لن يُرسل أي شيء الآن: تنقص قيمة تحدد البطارية.</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>This copy was built on this computer. Newer source, built again, updates it.</source>
        <translation>بُنيت هذه النسخة على هذا الكمبيوتر. ويحدّثها البناء من جديد من مصدر أحدث.</translation>
    </message>
    <message>
        <source>This is the package &quot;%1&quot;. Newer versions of it are installed with %2, as those of the other packages of this system.</source>
        <translation>هذه هي الحزمة «%1». تُثبّت إصداراتها الأحدث باستخدام %2، مثل إصدارات الحزم الأخرى في هذا النظام.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <comment>the version</comment>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>title of the pane</comment>
        <translation>التحديث</translation>
    </message>
</context>
<context>
    <name>SampleChart</name>
    <message>
        <source>Charge</source>
        <translation>الشحن</translation>
    </message>
    <message>
        <source>Nothing was recorded in this time.</source>
        <translation>لم يُسجّل شيء في هذا الوقت.</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>القدرة</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>قيد الشحن</translation>
    </message>
    <message>
        <source>discharging</source>
        <translation>قيد التفريغ</translation>
    </message>
    <message>
        <source>from UPower</source>
        <translation>من UPower</translation>
    </message>
    <message>
        <source>full</source>
        <translation>ممتلئة</translation>
    </message>
</context>
<context>
    <name>SnapshotFiles</name>
    <message>
        <source>All files (*)</source>
        <translation>كل الملفات (*)</translation>
    </message>
    <message>
        <source>Archives of snapshots (*.qndarchive)</source>
        <translation>أرشيفات اللقطات (*.qndarchive)</translation>
    </message>
    <message>
        <source>Export Snapshots</source>
        <translation>تصدير اللقطات</translation>
    </message>
    <message>
        <source>Import Snapshots</source>
        <translation>استيراد اللقطات</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>جدول (*.csv)</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>مع الأ&amp;رقام التسلسلية</translation>
    </message>
</context>
<context>
    <name>Snapshots</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 يوم</numerusform>
            <numerusform>يوم واحد</numerusform>
            <numerusform>يومان</numerusform>
            <numerusform>%1 أيام</numerusform>
            <numerusform>%1 يومًا</numerusform>
            <numerusform>%1 يوم</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points</source>
        <comment>of health, with one decimal</comment>
        <translation>%1 نقطة مئوية</translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots</source>
        <translation>
            <numerusform>%1 لقطة</numerusform>
            <numerusform>لقطة واحدة</numerusform>
            <numerusform>لقطتان</numerusform>
            <numerusform>%1 لقطات</numerusform>
            <numerusform>%1 لقطة</numerusform>
            <numerusform>%1 لقطة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots deleted</source>
        <translation>
            <numerusform>لم تُحذف أي لقطة</numerusform>
            <numerusform>حُذفت لقطة واحدة</numerusform>
            <numerusform>حُذفت لقطتان</numerusform>
            <numerusform>حُذفت %1 لقطات</numerusform>
            <numerusform>حُذفت %1 لقطة</numerusform>
            <numerusform>حُذفت %1 لقطة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots imported</source>
        <translation>
            <numerusform>لم تُستورد أي لقطة</numerusform>
            <numerusform>استُوردت لقطة واحدة</numerusform>
            <numerusform>استُوردت لقطتان</numerusform>
            <numerusform>استُوردت %1 لقطات</numerusform>
            <numerusform>استُوردت %1 لقطة</numerusform>
            <numerusform>استُوردت %1 لقطة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 snapshots restored</source>
        <translation>
            <numerusform>لم تُستعد أي لقطة</numerusform>
            <numerusform>استُعيدت لقطة واحدة</numerusform>
            <numerusform>استُعيدت لقطتان</numerusform>
            <numerusform>استُعيدت %1 لقطات</numerusform>
            <numerusform>استُعيدت %1 لقطة</numerusform>
            <numerusform>استُعيدت %1 لقطة</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>يوم واحد</translation>
    </message>
    <message>
        <source>1 snapshot</source>
        <translation>لقطة واحدة</translation>
    </message>
    <message>
        <source>1 snapshot deleted</source>
        <translation>حُذفت لقطة واحدة</translation>
    </message>
    <message>
        <source>1 snapshot imported</source>
        <translation>استُوردت لقطة واحدة</translation>
    </message>
    <message>
        <source>1 snapshot restored</source>
        <translation>استُعيدت لقطة واحدة</translation>
    </message>
    <message>
        <source>1 snapshot saved</source>
        <translation>حُفظت لقطة واحدة</translation>
    </message>
    <message>
        <source>All snapshots deleted</source>
        <translation>حُذفت كل اللقطات</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>البطارية</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>الكمبيوتر</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>عدد الدورات</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>السعة التصميمية</translation>
    </message>
    <message>
        <source>Full charge</source>
        <translation>سعة الشحن الكامل</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>الصحة</translation>
    </message>
    <message>
        <source>There is no folder for snapshots: the user has no home folder</source>
        <translation>لا يوجد مجلد للقطات: ليس للمستخدم مجلد منزل</translation>
    </message>
</context>
<context>
    <name>Trend</name>
    <message numerus="yes">
        <source>%1 cycles</source>
        <translation>
            <numerusform>%1 دورة</numerusform>
            <numerusform>دورة واحدة</numerusform>
            <numerusform>دورتان</numerusform>
            <numerusform>%1 دورات</numerusform>
            <numerusform>%1 دورة</numerusform>
            <numerusform>%1 دورة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 يوم</numerusform>
            <numerusform>يوم واحد</numerusform>
            <numerusform>يومين</numerusform>
            <numerusform>%1 أيام</numerusform>
            <numerusform>%1 يومًا</numerusform>
            <numerusform>%1 يوم</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 points a year</source>
        <translation>%1 نقطة مئوية سنويًا</translation>
    </message>
    <message>
        <source>%1 so far</source>
        <comment>days</comment>
        <translation>حتى الآن بيانات من %1</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>a pace, days</comment>
        <translation>%1 (بيانات من %2)</translation>
    </message>
    <message>
        <source>%1, from %2 and %3</source>
        <comment>a pace, days, cycles</comment>
        <translation>%1 (بيانات من %2، %3)</translation>
    </message>
    <message>
        <source>1 cycle</source>
        <translation>دورة واحدة</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>يوم واحد</translation>
    </message>
    <message>
        <source>80 %</source>
        <translation>80%</translation>
    </message>
    <message>
        <source>80 % of its first full charge</source>
        <translation>80% من سعة أول شحن كامل</translation>
    </message>
    <message>
        <source>Already under %1</source>
        <translation>أقل من %1 بالفعل</translation>
    </message>
    <message>
        <source>At this pace %1 %2</source>
        <comment>a percentage, when</comment>
        <translation>بهذه الوتيرة: %1 %2</translation>
    </message>
    <message>
        <source>No wear to be seen in %1</source>
        <comment>days</comment>
        <translation>لا يظهر تآكل خلال %1</translation>
    </message>
    <message>
        <source>Not enough history yet (needs 60 days)</source>
        <translation>السجل غير كافٍ بعد (يلزم 60 يومًا)</translation>
    </message>
    <message>
        <source>about now</source>
        <translation>الآن تقريبًا</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a month with its year</comment>
        <translation>نحو %1</translation>
    </message>
    <message>
        <source>around %1</source>
        <comment>a year</comment>
        <translation>نحو عام %1</translation>
    </message>
    <message>
        <source>between %1 and %2</source>
        <comment>years</comment>
        <translation>بين عامي %1 و%2</translation>
    </message>
    <message>
        <source>in early %1</source>
        <comment>a year</comment>
        <translation>في أوائل عام %1</translation>
    </message>
    <message>
        <source>in late %1</source>
        <comment>a year</comment>
        <translation>في أواخر عام %1</translation>
    </message>
    <message>
        <source>in mid-%1</source>
        <comment>a year</comment>
        <translation>في منتصف عام %1</translation>
    </message>
    <message>
        <source>in more than 20 years</source>
        <translation>بعد أكثر من 20 سنة</translation>
    </message>
    <message>
        <source>less than %1 points a year</source>
        <translation>أقل من %1 نقطة مئوية سنويًا</translation>
    </message>
    <message>
        <source>not before %1</source>
        <comment>a year</comment>
        <translation>ليس قبل عام %1</translation>
    </message>
</context>
<context>
    <name>WarningSettings</name>
    <message>
        <source>%1&apos;s power manager warns on this desktop.</source>
        <translation>يتولى مدير الطاقة في %1 التحذير على سطح المكتب هذا.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>دائمًا</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>البطارية منخفضة</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>حد الشحن</translation>
    </message>
    <message>
        <source>Command for battery low</source>
        <translation>أمر عند انخفاض البطارية</translation>
    </message>
    <message>
        <source>Command for full</source>
        <translation>أمر عند الامتلاء</translation>
    </message>
    <message>
        <source>Command for nearly empty</source>
        <translation>أمر عند قرب نفاد البطارية</translation>
    </message>
    <message>
        <source>Command for the charge limit</source>
        <translation>أمر عند بلوغ حد الشحن</translation>
    </message>
    <message>
        <source>Command for very low</source>
        <translation>أمر عند الانخفاض الشديد</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>ممتلئة</translation>
    </message>
    <message>
        <source>Nearly empty</source>
        <translation>على وشك النفاد</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>أبدًا</translation>
    </message>
    <message>
        <source>Percentage for battery low</source>
        <translation>النسبة المئوية لانخفاض البطارية</translation>
    </message>
    <message>
        <source>Percentage for full</source>
        <translation>النسبة المئوية للامتلاء</translation>
    </message>
    <message>
        <source>Percentage for nearly empty</source>
        <translation>النسبة المئوية لقرب نفاد البطارية</translation>
    </message>
    <message>
        <source>Percentage for the charge limit</source>
        <translation>النسبة المئوية لحد الشحن</translation>
    </message>
    <message>
        <source>Percentage for very low</source>
        <translation>النسبة المئوية للانخفاض الشديد</translation>
    </message>
    <message>
        <source>Unless the desktop warns</source>
        <translation>ما لم يحذّر سطح المكتب</translation>
    </message>
    <message>
        <source>Very low</source>
        <translation>منخفضة جدًا</translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>%1 left</source>
        <comment>a percentage</comment>
        <translation>المتبقي %1</translation>
    </message>
    <message numerus="yes">
        <source>About %1 minutes left</source>
        <translation>
            <numerusform>أقل من دقيقة متبقية</numerusform>
            <numerusform>دقيقة واحدة متبقية تقريبًا</numerusform>
            <numerusform>دقيقتان متبقيتان تقريبًا</numerusform>
            <numerusform>%1 دقائق متبقية تقريبًا</numerusform>
            <numerusform>%1 دقيقة متبقية تقريبًا</numerusform>
            <numerusform>%1 دقيقة متبقية تقريبًا</numerusform>
        </translation>
    </message>
    <message>
        <source>About a minute left</source>
        <translation>دقيقة واحدة متبقية تقريبًا</translation>
    </message>
    <message>
        <source>Battery full</source>
        <translation>البطارية ممتلئة</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>البطارية منخفضة</translation>
    </message>
    <message>
        <source>Battery nearly empty</source>
        <translation>البطارية على وشك النفاد</translation>
    </message>
    <message>
        <source>Battery very low</source>
        <translation>البطارية منخفضة جدًا</translation>
    </message>
    <message>
        <source>Charge limit reached</source>
        <translation>تم بلوغ حد الشحن</translation>
    </message>
</context>
<context>
    <name>WearChart</name>
    <message>
        <source>Battery %1</source>
        <translation>البطارية %1</translation>
    </message>
    <message>
        <source>Design capacity %1</source>
        <translation>السعة التصميمية ⁦%1⁩</translation>
    </message>
    <message>
        <source>First full charge %1</source>
        <translation>سعة أول شحن كامل ⁦%1⁩</translation>
    </message>
    <message>
        <source>No snapshots yet: one is saved each day.</source>
        <translation>لا توجد لقطات بعد: تُحفظ لقطة كل يوم.</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryPage</name>
    <message>
        <source>Batteries</source>
        <translation>البطاريات</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>البطارية</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>الشحن</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>الكمبيوتر</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>الأجهزة</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>الصحة</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>لا توجد بطارية</translation>
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
        <translation>البطاريات</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>البطارية</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>الشحن</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>الكمبيوتر</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>الأجهزة</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>الصحة</translation>
    </message>
</context>
<context>
    <name>quindle::BatteryWindow</name>
    <message>
        <source>Battery</source>
        <translation>البطارية</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>نسخ الكل</translation>
    </message>
</context>
<context>
    <name>quindle::CompareDialog</name>
    <message>
        <source>Compare Snapshots</source>
        <translation>مقارنة اللقطات</translation>
    </message>
</context>
<context>
    <name>quindle::DetailsPage</name>
    <message>
        <source>&amp;Copy as Text</source>
        <translation>&amp;نسخ كنص</translation>
    </message>
    <message>
        <source>&amp;Save as Machine File...</source>
        <translation>&amp;حفظ كملف جهاز…</translation>
    </message>
    <message>
        <source>A file that the program can be run on in place of this computer, for reports of defects</source>
        <translation>ملف يمكن تشغيل البرنامج عليه بدلًا من هذا الكمبيوتر، لتقارير العيوب</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>تم النسخ</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>Machine files (*.plist)</source>
        <translation>ملفات الأجهزة (*.plist)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>لم يُعثر على شيء</translation>
    </message>
    <message>
        <source>Save as Machine File</source>
        <translation>حفظ كملف جهاز</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>تم الحفظ</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Search details</source>
        <translation>البحث في التفاصيل</translation>
    </message>
    <message>
        <source>With serial &amp;numbers</source>
        <translation>مع الأ&amp;رقام التسلسلية</translation>
    </message>
</context>
<context>
    <name>quindle::FactRow</name>
    <message>
        <source>Click to switch the unit</source>
        <translation>النقر يبدّل الوحدة</translation>
    </message>
</context>
<context>
    <name>quindle::GeneralPreferencesController</name>
    <message>
        <source>&amp;Celsius</source>
        <translation>&amp;سلزيوس</translation>
    </message>
    <message>
        <source>&amp;Fahrenheit</source>
        <translation>&amp;فهرنهايت</translation>
    </message>
    <message>
        <source>&amp;Kelvin</source>
        <translation>&amp;كلفن</translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation>ال&amp;متغيرات</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>إعادة ال&amp;ضبط</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>تسجيل الدخول</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>شريط القائمة</translation>
    </message>
    <message>
        <source>Menu bar &amp;text</source>
        <translation>&amp;نص شريط القائمة</translation>
    </message>
    <message>
        <source>Menu bar text</source>
        <translation>نص شريط القائمة</translation>
    </message>
    <message>
        <source>Nothing can be sent: no statistics service is configured.</source>
        <translation>لا يمكن إرسال أي شيء: لم تُعدّ خدمة إحصاءات.</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>المتغيرات</translation>
    </message>
    <message>
        <source>Reset menu bar text</source>
        <translation>إعادة ضبط نص شريط القائمة</translation>
    </message>
    <message>
        <source>See &amp;exactly what is sent...</source>
        <translation>&amp;عرض ما يُرسل بالضبط…</translation>
    </message>
    <message>
        <source>See exactly what is sent</source>
        <translation>عرض ما يُرسل بالضبط</translation>
    </message>
    <message>
        <source>Send battery &amp;health once a day</source>
        <translation>إرسال &amp;صحة البطارية مرة يوميًا</translation>
    </message>
    <message>
        <source>Send battery health once a day</source>
        <translation>إرسال صحة البطارية مرة يوميًا</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>إظهار &amp;أيقونة البطارية</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>إظهار أيقونة البطارية</translation>
    </message>
    <message>
        <source>Start when I l&amp;og in</source>
        <translation>ال&amp;بدء عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Start when I log in</source>
        <translation>البدء عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>الإحصاءات</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>درجة الحرارة</translation>
    </message>
    <message>
        <source>The serial number is masked.</source>
        <translation>الرقم التسلسلي محجوب.</translation>
    </message>
    <message>
        <source>This option can only be disabled in main application. Run it via &quot;Open Application&quot; from the menu</source>
        <translation>لا يمكن تعطيل هذا الخيار إلا في التطبيق الرئيسي. يُفتح عبر «فتح التطبيق» من القائمة</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
</context>
<context>
    <name>quindle::HelperPreferences</name>
    <message>
        <source>&amp;Celsius</source>
        <translation>&amp;سلزيوس</translation>
    </message>
    <message>
        <source>&amp;Fahrenheit</source>
        <translation>&amp;فهرنهايت</translation>
    </message>
    <message>
        <source>&amp;Kelvin</source>
        <translation>&amp;كلفن</translation>
    </message>
    <message>
        <source>&amp;Mark battery data for automatic upload</source>
        <translation>&amp;وسم بيانات البطارية للرفع التلقائي</translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation>ال&amp;متغيرات</translation>
    </message>
    <message>
        <source>&amp;Run in the background when I log in</source>
        <translation>ال&amp;تشغيل في الخلفية عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>&amp;Standard title</source>
        <translation>العنوان ال&amp;قياسي</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>إ&amp;غلاق</translation>
    </message>
    <message>
        <source>C&amp;ustom text</source>
        <translation>&amp;نص مخصص</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Custom menu bar text</source>
        <translation>نص مخصص لشريط القائمة</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>الأيقونة</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>تسجيل الدخول</translation>
    </message>
    <message>
        <source>Mark battery data for automatic upload</source>
        <translation>وسم بيانات البطارية للرفع التلقائي</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>نص شريط القائمة</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>شريط القائمة</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>المتغيرات</translation>
    </message>
    <message>
        <source>Run in the background when I log in</source>
        <translation>التشغيل في الخلفية عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Show battery &amp;icon</source>
        <translation>إظهار &amp;أيقونة البطارية</translation>
    </message>
    <message>
        <source>Show battery icon</source>
        <translation>إظهار أيقونة البطارية</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>الإحصاءات</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>درجة الحرارة</translation>
    </message>
    <message>
        <source>This mark alone sends nothing. The daily upload is switched in Preferences, General.</source>
        <translation>هذا الوسم وحده لا يرسل شيئًا. يُشغَّل الرفع اليومي أو يُوقَف في الإعدادات ضمن «عام».</translation>
    </message>
</context>
<context>
    <name>quindle::HistoryPage</name>
    <message>
        <source>&amp;Charge</source>
        <translation>الش&amp;حن</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;تصدير…</translation>
    </message>
    <message>
        <source>&amp;Power</source>
        <translation>ال&amp;قدرة</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>حف&amp;ظ صورة…</translation>
    </message>
    <message>
        <source>Charge, %1</source>
        <translation>الشحن، %1</translation>
    </message>
    <message>
        <source>Drawings (*.svg)</source>
        <translation>رسوم (*.svg)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>تصدير</translation>
    </message>
    <message>
        <source>Full charge, mAh</source>
        <translation>سعة الشحن الكامل، mAh</translation>
    </message>
    <message>
        <source>Full charge, whole history</source>
        <translation>سعة الشحن الكامل، السجل كله</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>الصحة</translation>
    </message>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>لا يوجد سجل بعد</translation>
    </message>
    <message>
        <source>One snapshot a day says how the battery wears</source>
        <translation>لقطة واحدة يوميًا تبيّن كيف تتآكل البطارية</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>صور (*.png)</translation>
    </message>
    <message>
        <source>Power, %1</source>
        <translation>القدرة، %1</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>الكمية</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>الفترة</translation>
    </message>
    <message>
        <source>Recording is off, so nothing is added.</source>
        <translation>التسجيل متوقف، لذا لا يُضاف شيء.</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>حفظ صورة</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>تم الحفظ</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Settings of recording</source>
        <translation>إعدادات التسجيل</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>جداول (*.csv)</translation>
    </message>
    <message>
        <source>With a probability of 95 % between %1 and %2 points a year</source>
        <translation>باحتمال 95% بين %1 و%2 نقطة مئوية سنويًا</translation>
    </message>
    <message>
        <source>asleep left open</source>
        <translation>الفراغ: سكون</translation>
    </message>
    <message>
        <source>charging shaded</source>
        <translation>المظلل: شحن</translation>
    </message>
    <message>
        <source>older values are means</source>
        <translation>القيم الأقدم متوسطات</translation>
    </message>
    <message>
        <source>pale from UPower</source>
        <translation>الباهت من UPower</translation>
    </message>
</context>
<context>
    <name>quindle::HistorySettingsView</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;حذف</translation>
    </message>
    <message>
        <source>&amp;Delete History...</source>
        <translation>&amp;حذف السجل…</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>إ&amp;بقاء</translation>
    </message>
    <message>
        <source>Delete History</source>
        <translation>حذف السجل</translation>
    </message>
    <message>
        <source>Delete all snapshots, and all recorded charge and power?</source>
        <translation>هل تريد حذف كل اللقطات وكل ما سُجّل من الشحن والقدرة؟</translation>
    </message>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>It stays on this computer.</source>
        <translation>تبقى البيانات على هذا الكمبيوتر.</translation>
    </message>
    <message>
        <source>Keep charge and power</source>
        <translation>الاحتفاظ بالشحن والقدرة</translation>
    </message>
    <message>
        <source>Record charge, po&amp;wer and a daily snapshot</source>
        <translation>&amp;تسجيل الشحن والقدرة ولقطة يومية</translation>
    </message>
    <message>
        <source>Record charge, power and a daily snapshot</source>
        <translation>تسجيل الشحن والقدرة ولقطة يومية</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>لا يمكن التراجع عن ذلك.</translation>
    </message>
</context>
<context>
    <name>quindle::MenuBarPreferencesController</name>
    <message>
        <source>&amp;Icon only</source>
        <translation>الأيقونة &amp;فقط</translation>
    </message>
    <message>
        <source>&amp;One wide picture with the text</source>
        <translation>صورة &amp;عريضة واحدة مع النص</translation>
    </message>
    <message>
        <source>Icon, with text &amp;beside it</source>
        <translation>أيقونة وبجانبها ال&amp;نص</translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation>شريط القائمة</translation>
    </message>
    <message>
        <source>Menu Bar &amp;Text...</source>
        <translation>نص &amp;شريط القائمة…</translation>
    </message>
    <message>
        <source>Menu Bar Text</source>
        <translation>نص شريط القائمة</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>شريط القائمة</translation>
    </message>
    <message>
        <source>Not every panel has room for text. The text is always in the tool tip and in the menu. A panel that shows squares only shows the charge as a number instead of a wide picture.</source>
        <translation>لا تتسع كل لوحة للنص. يظهر النص دائمًا في التلميح وفي القائمة. أما اللوحة التي لا تعرض إلا مربعات فتعرض الشحن كرقم بدلًا من صورة عريضة.</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>طريقة العرض</translation>
    </message>
    <message>
        <source>What &amp;suits the panel</source>
        <translation>ما ي&amp;لائم اللوحة</translation>
    </message>
</context>
<context>
    <name>quindle::NoBatteryView</name>
    <message>
        <source>Computer</source>
        <translation>الكمبيوتر</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>الأجهزة</translation>
    </message>
    <message>
        <source>No battery</source>
        <translation>لا توجد بطارية</translation>
    </message>
</context>
<context>
    <name>quindle::ParameterPopover</name>
    <message>
        <source>%1, %2, now %3</source>
        <translation>%1، %2، الآن %3</translation>
    </message>
    <message>
        <source>Choose a parameter to insert it</source>
        <translation>اختيار متغير لإدراجه</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>المتغيرات</translation>
    </message>
    <message>
        <source>Parameters of the menu bar text</source>
        <translation>متغيرات نص شريط القائمة</translation>
    </message>
</context>
<context>
    <name>quindle::PreferencesToolbar</name>
    <message>
        <source>Panes</source>
        <translation>الأقسام</translation>
    </message>
</context>
<context>
    <name>quindle::SentDataDialog</name>
    <message>
        <source>Nothing would be sent: no host of the statistics service is configured.</source>
        <translation>لن يُرسل أي شيء: لم يُعدّ خادم لخدمة الإحصاءات.</translation>
    </message>
    <message>
        <source>This is what would be sent now, once a day at most:</source>
        <translation>هذا ما سيُرسل الآن، مرة واحدة يوميًا على الأكثر:</translation>
    </message>
    <message>
        <source>What is sent</source>
        <translation>ما يُرسل</translation>
    </message>
</context>
<context>
    <name>quindle::SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
</context>
<context>
    <name>quindle::Sidebar</name>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotView</name>
    <message>
        <source>Snapshots</source>
        <translation>اللقطات</translation>
    </message>
</context>
<context>
    <name>quindle::SnapshotsPage</name>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;مقارنة</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;حذف</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;تصدير…</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>ا&amp;ستيراد…</translation>
    </message>
    <message>
        <source>&amp;Save Now</source>
        <translation>ح&amp;فظ الآن</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>ت&amp;راجع</translation>
    </message>
    <message>
        <source>Exported</source>
        <translation>تم التصدير</translation>
    </message>
    <message>
        <source>No snapshots yet</source>
        <translation>لا توجد لقطات بعد</translation>
    </message>
    <message>
        <source>Reading the snapshots</source>
        <translation>جارٍ قراءة اللقطات</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>اللقطات</translation>
    </message>
    <message>
        <source>There is no battery to save a snapshot of</source>
        <translation>لا توجد بطارية لحفظ لقطة لها</translation>
    </message>
    <message>
        <source>Two snapshots that are selected, beside each other</source>
        <translation>اللقطتان المحددتان جنبًا إلى جنب</translation>
    </message>
    <message>
        <source>Undo deleting</source>
        <translation>التراجع عن الحذف</translation>
    </message>
</context>
<context>
    <name>quindle::SortHeader</name>
    <message>
        <source>Sort</source>
        <translation>الترتيب</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>الترتيب حسب %1</translation>
    </message>
    <message>
        <source>Sorted by %1, %2</source>
        <translation>مرتبة حسب %1، %2</translation>
    </message>
    <message>
        <source>ascending</source>
        <translation>تصاعديًا</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>تنازليًا</translation>
    </message>
</context>
<context>
    <name>quindle::TitlePreview</name>
    <message>
        <source>Now shows</source>
        <translation>المعروض الآن</translation>
    </message>
    <message>
        <source>Now shows %1</source>
        <translation>المعروض الآن: %1</translation>
    </message>
    <message>
        <source>Would show</source>
        <translation>سيُعرض</translation>
    </message>
    <message>
        <source>Would show %1</source>
        <translation>سيُعرض: %1</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>لا نص</translation>
    </message>
    <message>
        <source>no text without a battery</source>
        <translation>لا نص من دون بطارية</translation>
    </message>
    <message>
        <source>nothing, without a panel</source>
        <translation>لا شيء، من دون شريط</translation>
    </message>
    <message>
        <source>the icon alone</source>
        <translation>الأيقونة وحدها</translation>
    </message>
    <message>
        <source>the number %1</source>
        <translation>الرقم %1</translation>
    </message>
</context>
<context>
    <name>quindle::UpdatePreferencesController</name>
    <message>
        <source>Quindle Helper does not look for updates by itself.</source>
        <translation>لا يبحث Quindle Helper عن التحديثات بنفسه.</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>التحديثات</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>الإصدار</translation>
    </message>
</context>
<context>
    <name>quindle::WarningSettingsView</name>
    <message>
        <source>A program to run then, with the level, the percentage and the state as arguments</source>
        <translation>برنامج يُشغَّل عندئذ، مع المستوى والنسبة المئوية والحالة كوسائط</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>Auto: the limit that the computer reports</source>
        <translation>تلقائي: الحد الذي يبلغ عنه الكمبيوتر</translation>
    </message>
    <message>
        <source>Command to run then</source>
        <translation>أمر يُشغَّل عندئذ</translation>
    </message>
    <message>
        <source>No power manager warns on this desktop.</source>
        <translation>لا يحذّر أي مدير طاقة على سطح المكتب هذا.</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>التحذير</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>التحذيرات</translation>
    </message>
</context>
</TS>
