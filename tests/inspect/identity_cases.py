"""What distinguishes computers, batteries and their ages."""

import datetime
import hashlib

from machine_case import Case, machine

DETAILS = "battery/raw"
VERSION_FILE = "/System/Library/CoreServices/SystemVersion.plist"
LAUNCHED = datetime.datetime(2016, 1, 1)


def digest(text):
    return hashlib.md5(text.encode()).hexdigest()


def battery(line=0, **values):
    return [(line, "battery/" + name, value) for name, value in values.items()]


def mac(line=0, **values):
    return [(line, "mac/" + name, value) for name, value in values.items()]


def packed(number, date, zone="UTC", **keys):
    return Case(f"packed date {number} in {zone}", machine(battery={"ManufactureDate": number}, **keys),
                battery(ManufactureDate=date), {"TZ": zone})


PACKED_DATES = [
    packed(0, "1979-11-30T00:00:00+00:00"),
    packed(17503, "2014-03-03T00:00:00+00:00"),
    packed(17889, "2015-03-01T00:00:00+00:00"),
    packed(-1, "1980-03-31T00:00:00+00:00"),
    packed((34 << 9) | (13 << 5) | 1, "2015-01-01T00:00:00+00:00"),
    packed((34 << 9) | (14 << 5), "2015-01-31T00:00:00+00:00"),
    packed(17747, "2014-10-19T01:00:00-02:00", "America/Sao_Paulo"),
    packed(17506, "2014-03-02T00:00:00+01:00", "Europe/Berlin"),
    packed(((2070 - 1980) << 9) | (1 << 5) | 1, "2070-01-01T00:00:00+00:00"),
]


def age(name, made, now, zone="UTC", mode=0, **expected):
    return Case(name, machine(battery={"ManufactureDate": made}, Now=now, standard={"QDBatteryAgeMode": mode}),
                battery(**expected), {"TZ": zone})


def berlin(*moment):
    """Local time of Berlin in winter as the file's universal time."""
    return datetime.datetime(*moment) - datetime.timedelta(hours=1)


MARCH_30 = (34 << 9) | (3 << 5) | 30
JANUARY_31 = (34 << 9) | (1 << 5) | 31

AGES = [
    age("a day of 23 hours is a day", MARCH_30, datetime.datetime(2014, 3, 30, 22), "Europe/Berlin", CustomAge="1 days"),
    age("a second before it is none", MARCH_30, datetime.datetime(2014, 3, 30, 21, 59, 59), "Europe/Berlin",
        CustomAge="0 days"),
    age("a month ends with a shorter one", JANUARY_31, berlin(2014, 2, 28), "Europe/Berlin", 1, CustomAge="1 months",
        LegacyAgeInMonths=1),
    age("and not a second earlier", JANUARY_31, berlin(2014, 2, 27, 23, 59, 59), "Europe/Berlin", 1, CustomAge="0 months",
        LegacyAgeInMonths=0),
    age("months counted in every mode", JANUARY_31, datetime.datetime(2015, 3, 1), mode=2, CustomAge="1.1 years",
        LegacyAgeInMonths=13),
    Case("the number of a newer battery is a date and an identity",
         machine(battery={"ManufactureDate": 58481155946291, "BatterySerialNumber": "ABC"}),
         battery(BatteryID=digest("ABC58481155946291"))),
    Case("the battery's age is toggled through its units and stored",
         machine(battery={"ManufactureDate": 17506}, Now=datetime.datetime(2016, 5, 12),
                 steps=[{"Actions": ["battery.toggleAge"]}] * 3),
         battery(CustomAge="802 days") + battery(1, CustomAge="26 months") + battery(2, CustomAge="2.2 years") + battery(3, CustomAge="802 days")
         + [(line, "defaults/standard/QDBatteryAgeMode", mode) for line, mode in ((1, 1), (2, 2), (3, 0))]),
    Case("another age mode of the computer means days", machine(
        mac={"IOPlatformSerialNumber": "C02MN1TXF5YW"}, Now=datetime.datetime(2014, 6, 13),
        standard={"QDMacAgeMode": 5}, steps=[{"Actions": ["mac.toggleAge"]}]),
         mac(CustomAge="32 days", ageMode=5) + mac(1, CustomAge="1 months", ageMode=1)
         + [(1, "defaults/standard/QDMacAgeMode", 1)]),
]


def maker(name, written):
    return Case(f"manufacturer {name!r}", machine(battery={"Manufacturer": name}),
                battery(Manufacturer=written, ManufacturerRaw=name))


MANUFACTURERS = [
    maker("SMP", "Simplo"),
    maker("DP", "Dynapack"),
    maker("ADPSMP", "ADynapackSimplo"),
    maker("dp", "dp"),
    maker("", ""),
]


def row(name, value, text):
    return Case(f"detail row {name}", machine(battery={}, PowerSources=[{"Key": value}]),
                [(0, DETAILS, [{"Key": text}])])


DETAIL_ROWS = [
    Case("numbers equal to true and false", machine(battery={}, PowerSources=[
        {"Max Capacity": 1, "Is Charging": True, "Current Capacity": 0.0, "X": "1", "Y": -0.0, "Z": 1.0}]),
         [(0, DETAILS, [{"Max Capacity": "YES", "Is Charging": "YES", "Current Capacity": "NO", "X": "1", "Y": "NO",
                         "Z": "YES"}])]),
    row("real without fraction", 2.0, "2"),
    row("real", 0.1, "0.1"),
    row("large integer", 9007199254740993, "9007199254740993"),
    row("date", datetime.datetime(2014, 3, 2), "2014-03-02 00:00:00 +0000"),
    row("data", b"\x0a\x0b", "<0a0b>"),
    row("array", [1, 2], "(\n    1,\n    2\n)"),
    row("booleans inside an array", [True, False], "(\n    1,\n    0\n)"),
    row("dictionary", {"a": 1}, "{\n    a = 1;\n}"),
    Case("health stays when nothing new is known", machine(
        battery={}, PowerSources=[{"BatteryHealth": "Good"}],
        steps=[{"PowerSources": []}, {"PowerSources": [{"Name": "UPS"}, {"BatteryHealth": "Fair"}]}]),
         battery(BatteryHealth="Good") + battery(1, raw=[], BatteryHealth="Good") + battery(2, BatteryHealth="Good")),
    Case("the reserve of the registry is no detail", machine(battery={"PackReserve": 50}, PowerSources=[{"A": "b"}]),
         [(0, DETAILS, [{"A": "b"}])]),
]


def serial(text, **keys):
    return machine(mac={"IOPlatformSerialNumber": text}, Now=LAUNCHED, **keys)


def built(text, date, **more):
    return Case(f"serial {text!r}", serial(text), mac(ManufactureDate=date, **more))


NEVER = "2016-01-01T00:00:00+00:00"

SERIALS = [
    built("C02MN1TXF5YW", "2014-05-12T00:00:00+00:00", getModelStringFromSerial="F5YW"),
    built("C02MN1TXF5Ye\u0301", "2014-05-12T00:00:00+00:00", getModelStringFromSerial="F5Ye\u0301"),
    built("C02MN1TXF5e\u0301", NEVER, getModelStringFromSerial="F5e\u0301", getBuildDateSerialString="2MN"),
    built("\U0001f600" + "02MN1TXF5YW", "2014-05-12T00:00:00+00:00", getBuildDateSerialString="MN"),
    built("C02ZZ1TXF5YW", "2019-07-08T00:00:00+00:00"),
    built("C02Z01TXF5YW", "2019-07-08T00:00:00+00:00"),
    built("C02mn1TXF5YW", "2000-01-03T00:00:00+00:00"),
    built("C02D11TXF5YW", "2010-07-05T00:00:00+00:00"),
    built("W8400123ABC", "2003-12-29T00:00:00+00:00"),
    built("W8499123ABC", "2005-11-21T00:00:00+00:00"),
    built("W84 5123ABC", NEVER),
    built("W845 123ABC", NEVER),
    built("W84\u0664\u0664123ABC", NEVER),
    built("W84+5123ABC", "2004-02-02T00:00:00+00:00"),
    built("W84-1123ABC", "2003-12-22T00:00:00+00:00"),
    built("XX110123ABC", "2011-03-07T00:00:00+00:00"),
    built("XX210123ABC", "2002-03-11T00:00:00+00:00"),
    built("XXx10123ABC", "2000-03-06T00:00:00+00:00"),
    built("ABCDEFGHIJK", NEVER, getModelStringFromSerial="IJK"),
    built("C02MN1TXF5", NEVER, getBuildDateSerialString="", getModelStringFromSerial=""),
    built("", NEVER, getBuildDateSerialString="", Serial=""),
]

YEARS = [
    Case(f"{months} months are {text}", serial("C02MN1TXF5YW") | {
        "Now": datetime.datetime(2014 + (4 + months) // 12, (4 + months) % 12 + 1, 12),
        "Defaults": {"standard": {"QDMacAgeMode": 2}}}, mac(CustomAge=text))
    for months, text in ((34, "2.8 years"), (13, "1.1 years"), (12, "1.0 years"), (3, "0.3 years"), (0, "0.0 years"))
]


def version(text, name):
    return Case(f"system {text!r}", machine(Files={VERSION_FILE: {"ProductVersion": text}}), mac(OSXVersion=name))


def typed(identifier, name):
    return Case(f"model {identifier!r}", machine(mac={"model": identifier.encode() + b"\0"}), mac(Type=name))


NAMES = [
    version("10.10.9", "OS X Yosemite"), version("110.12", "macOS Sierra"), version("10.60", "Mac OS X Snow Leopard"),
    version("10.1", "OS X"), version("10.15.7", "OS X"), version("13.0", "OS X"), version("", "OS X"),
    version("10.12.6", "macOS Sierra"), version("10.14.6", "OS X"), version("10.5.8", "OS X"),
    typed("iMacPro1,1", "iMac"), typed("XMacBookAirY", "MacBook Air"), typed("macbookpro", ""),
    typed("PowerMac3,1", "Power Mac"), typed("MacBook10,1", "MacBook"), typed("", ""),
]


def macid(values, text):
    return Case(f"identifier of {text}", machine(mac=values), mac(generateMacID=digest(text)))


IDENTIFIERS = [
    macid({"model": b"MacBookAir4,2\0"}, 'Optional("MacBookAir4,2")'),
    macid({"IOPlatformSerialNumber": "C02MN1TXF5YW"}, "C02MN1TXF5YWnil"),
    Case("identifier of nothing", machine(), mac(generateMacID="852438d026c018c4307b916406f98c62")),
    Case("identifier of the known computer",
         machine(mac={"model": b"MacBookAir4,2\0", "IOPlatformSerialNumber": "C02MN1TXF5YW"}),
         mac(generateMacID="5fb707dd0f666300c7f8e5cf00917964")),
    Case("no model is not an empty one", machine(), mac(Model=None, Type="", LongModel=None)),
]

EVERYTHING = machine(
    battery={"ManufactureDate": 17506, "Temperature": 2981, "CurrentCapacity": 50, "MaxCapacity": 90},
    mac={"model": b"MacBookAir4,2\0", "IOPlatformSerialNumber": "C02MN1TXF5YW"}, Now=LAUNCHED,
    PowerSources=[{"When": datetime.datetime(2014, 3, 2), "Part": 0.5}])

LOCALES = [
    Case(f"digits and calendar in {locale}", EVERYTHING,
         battery(ManufactureDate="2014-03-02T00:00:00+00:00", Temperature="25.0 °C", CustomAge="670 days",
                 raw=[{"When": "2014-03-02 00:00:00 +0000", "Part": "0.5"}])
         + mac(ManufactureDateString="2014-05-12", CustomAge="599 days"), {"LC_ALL": locale})
    for locale in ("th_TH.UTF-8", "ar_SA.UTF-8", "de_DE.UTF-8")
]

CASES = (PACKED_DATES + AGES + MANUFACTURERS + DETAIL_ROWS + SERIALS + YEARS + NAMES + IDENTIFIERS + LOCALES)
