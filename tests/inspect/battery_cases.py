import datetime
import hashlib

from machine_case import ABORT, Case, battery_step, machine

# A pack whose figures are easy to follow; cases replace what they are about.
PACK = {
    "CurrentCapacity": 4000,
    "MaxCapacity": 6000,
    "DesignCapacity": 8000,
    "CycleCount": 300,
    "Voltage": 12500,
    "Amperage": -1600,
    "ExternalConnected": False,
    "IsCharging": False,
    "FullyCharged": False,
    "AvgTimeToEmpty": 95,
    "AvgTimeToFull": 65535,
    "Temperature": 3031,
    "BatterySerialNumber": "9G3310DDWAQ",
}


def pack(**changes):
    """The pack with other properties; None takes one out."""
    return {key: value for key, value in {**PACK, **changes}.items() if value is not None}


def pack_machine(**changes):
    return machine(battery=pack(**changes))


def kelvin(raw, mode, **defaults):
    return machine(battery=pack(Temperature=raw), standard={"QDBatteryTemperatureMode": mode, **defaults})


def adapter(details):
    return machine(battery=pack(), AdapterDetails=details)


def launch(*pairs):
    return [(0, "battery/" + name, value) for name, value in pairs]


NUMBERS = [
    Case("numbers of every kind are numbers",
         pack_machine(ExternalConnected=1, Temperature=3031, CycleCount=300.0),
         launch(("AdapterConnected", "Connected"), ("Temperature", "30.0 °C"), ("CycleCount", 300))),
    Case("a boolean is the whole number 1", pack_machine(CycleCount=True), launch(("CycleCount", 1))),
    Case("a text is no number", pack_machine(CycleCount="300"), ABORT),
    Case("a fraction is no whole number", pack_machine(CycleCount=1.5), ABORT),
    Case("2 is no boolean", pack_machine(IsCharging=2), ABORT),
    Case("a serial that is no text", pack_machine(BatterySerialNumber=5), ABORT),
    Case("a value that only the state reads", pack_machine(DesignCycleCount9C="1000"), ABORT),
    Case("unsigned spelling of a negative current", pack_machine(Amperage=18446744073709550016),
         launch(("amperage", -1600), ("WattThroughput", 20.0))),
    Case("64 bits are kept", pack_machine(CycleCount=9007199254740993), launch(("CycleCount", 9007199254740993))),
]

FIGURES = [
    Case("charge unrounded and floored", pack_machine(),
         launch(("StateOfCharge", 4000 / 6000 * 100), ("charge", 66.0), ("StateOfHealth", 75.0))),
    Case("divided before multiplied", pack_machine(CurrentCapacity=29, MaxCapacity=100),
         launch(("StateOfCharge", 28.999999999999996), ("charge", 28.0))),
    Case("current divided before multiplied", pack_machine(Voltage=12000, Amperage=-1999),
         launch(("WattThroughput", 23.988))),
    Case("power has no sign", pack_machine(Amperage=1600), launch(("WattThroughput", 20.0))),
    Case("no capacities at all", pack_machine(CurrentCapacity=None, MaxCapacity=None, DesignCapacity=None),
         launch(("StateOfCharge", "nan"), ("StateOfHealth", "nan"), ("charge", "nan"))),
    Case("full charge of 0", pack_machine(MaxCapacity=0), launch(("StateOfCharge", "inf"), ("charge", "inf"))),
    Case("negative charge over 0", pack_machine(CurrentCapacity=-1, MaxCapacity=0), launch(("StateOfCharge", "-inf"))),
    Case("design capacity of 0", pack_machine(DesignCapacity=0), launch(("StateOfHealth", "inf"))),
    Case("percentages above 100 stay", pack_machine(CurrentCapacity=6600), launch(("StateOfCharge", 6600 / 6000 * 100))),
    Case("properties of the texts beside the figures", pack_machine(),
         launch(("CycleCount_Desc", "The number of charge/discharge cycles the battery has experienced."),
                ("ReportedDesignCapacity_Desc",
                 "The capacity the battery reports it had after it left the factory. (stored in the Firmware)"),
                ("ActualDesignCapacity_Desc",
                 "The actual capacity the battery had after it left the factory. (reported by the manufacturer)"),
                ("SerialNumber", "9G3310DDWAQ"))),
    Case("failure status is a number, its text never changes", pack_machine(PermanentFailureStatus=255),
         launch(("permanentFailure", 255), ("PermanentFailureString", "No Errors"))),
    Case("no failure status", pack_machine(), launch(("permanentFailure", 0))),
    Case("values only the registry knows", pack_machine(InstantAmperage=-1500, DesignCycleCount9C=1000),
         launch(("voltage", 12500), ("amperage", -1600), ("instantAmperage", -1500), ("designCycleCount", 1000),
                ("isACPowered", False), ("isCharging", False), ("isCharged", False))),
]


def listed(model, reported=7300):
    return machine(battery=pack(DesignCapacity=reported), mac={"model": model})


def capacities(design, reported, actual):
    return launch(("DesignCapacity", design), ("ReportedDesignCapacity", reported), ("ActualDesignCapacity", actual))


RATED_CAPACITIES = [
    Case("listed model", listed(b"MacBookAir6,2\0"), capacities(7150, 7300, 7150)),
    Case("listed model, 0 reported", listed(b"MacBookAir6,2\0", 0), capacities(7150, 0, 7150)),
    Case("listed model, none reported", machine(battery=pack(DesignCapacity=None), mac={"model": b"MacBookAir6,2\0"}),
         capacities(7150, 0, 7150)),
    Case("other case", listed(b"macbookair6,2\0"), capacities(7300, 7300, 0)),
    Case("blank at the end", listed(b"MacBookAir6,2 \0"), capacities(7300, 7300, 0)),
    Case("unlisted model", listed(b"MacBookPro14,1\0"), capacities(7300, 7300, 0)),
    Case("no model", machine(battery=pack(DesignCapacity=7300)), capacities(7300, 7300, 0)),
]

TEMPERATURES = [
    Case("Celsius", kelvin(3031, 0), launch(("Temperature", "30.0 °C"), ("temperatureMode", 0))),
    Case("Fahrenheit from kelvin", kelvin(3031, 1), launch(("Temperature", "85.9 °F"))),
    Case("Kelvin", kelvin(3031, 2), launch(("Temperature", "303.1 K"))),
    Case("half up in Celsius", kelvin(2981.5, 0), launch(("Temperature", "25.0 °C"))),
    Case("half up in Fahrenheit", kelvin(2981.5, 1), launch(("Temperature", "77.0 °F"))),
    Case("half up in Kelvin", kelvin(2981.5, 2), launch(("Temperature", "298.2 K"))),
    Case("negative zero", kelvin(2731, 0), launch(("Temperature", "-0.0 °C"))),
    Case("present 0 is absolute zero", kelvin(0, 0), launch(("Temperature", "-273.2 °C"))),
    Case("missing is 0 in Celsius", pack_machine(Temperature=None), launch(("Temperature", "0.0 °C"))),
    Case("missing is 0 in Fahrenheit",
         machine(battery=pack(Temperature=None), standard={"QDBatteryTemperatureMode": 1}),
         launch(("Temperature", "0.0 °F"))),
    Case("missing is 0 in Kelvin", machine(battery=pack(Temperature=None), standard={"QDBatteryTemperatureMode": 2}),
         launch(("Temperature", "0.0 K"))),
    Case("two units, one for the view and one for the title",
         machine(battery=pack(), standard={"QDBatteryTemperatureMode": 2},
                 suite={"temperatureSettingIndex": 1, "customStatusBar": "%t"}),
         [(0, "battery/Temperature", "303.1 K"), (0, "statusItem/title", "85.9")]),
    Case("toggled from Celsius",
         machine(battery=pack(), steps=[{"Actions": ["battery.toggleTemperatureMode"]}] * 3),
         [item for step, unit, mode in ((1, "85.9 °F", 1), (2, "30.0 °C", 0), (3, "85.9 °F", 1))
          for item in ((step, "battery/Temperature", unit),
                       (step, "defaults/standard/QDBatteryTemperatureMode", mode))]),
    Case("hotter than any battery", kelvin(1002731.5, 0), launch(("Temperature", "100000.0 °C"))),
    Case("toggled from Kelvin it stays and is stored",
         machine(battery=pack(), standard={"QDBatteryTemperatureMode": 2},
                 steps=[{"Remove": ["Defaults/standard/QDBatteryTemperatureMode"]},
                        {"Actions": ["battery.toggleTemperatureMode"]}]),
         [(2, "battery/temperatureMode", 2), (2, "battery/Temperature", "303.1 K"),
          (2, "defaults/standard/QDBatteryTemperatureMode", 2)]),
]


def texts(line, state, caption, remaining, time):
    return [(line, "battery/BatteryState", state), (line, "battery/StateText", caption),
            (line, "battery/RemainingString", remaining), (line, "battery/TimeRemaining", time)]


def discharging(time, remaining="Time until empty", line=0):
    return texts(line, "Discharging...", "Discharging with", remaining, time)


def charging(time, remaining="Time until full", line=0):
    return texts(line, "Charging...", "Charging with", remaining, time)


FULL = dict(ExternalConnected=True, FullyCharged=True)
CHARGING = dict(ExternalConnected=True, IsCharging=True)
CHARGED = ("Charged", "Battery usage", "Battery fully charged", "")

STATES = [
    Case("discharging", pack_machine(), discharging("1:35")),
    Case("discharging, no estimate", pack_machine(AvgTimeToEmpty=65535), discharging("", "Calculating...")),
    Case("discharging, no key", pack_machine(AvgTimeToEmpty=None), discharging("0:00")),
    Case("discharging, only the sentinel is special", pack_machine(AvgTimeToEmpty=65536), discharging("1092:16")),
    Case("negative minutes", pack_machine(AvgTimeToEmpty=-65), discharging("-1:-5")),
    Case("the registry's TimeRemaining is another figure", pack_machine(TimeRemaining=200, InstantTimeToEmpty=65535),
         discharging("1:35") + launch(("timeRemainingFormatted", "3:20"), ("avgTimeToEmptyFormatted", "1:35"),
                                      ("avgTimeToFullFormatted", "1092:15"),
                                      ("instantTimeToEmptyFormatted", "1092:15"))),
    Case("missing times read 0:00", pack_machine(), launch(("timeRemainingFormatted", "0:00"))),
    Case("charging", pack_machine(**CHARGING, AvgTimeToFull=95), charging("1:35")),
    Case("charging, no estimate", pack_machine(**CHARGING), charging("", "Calculating...")),
    Case("charging, no key", pack_machine(**CHARGING, AvgTimeToFull=None), charging("0:00")),
    Case("full on the adapter", pack_machine(**FULL), texts(0, *CHARGED)),
    Case("full and charging: charging wins", pack_machine(**{**FULL, **CHARGING}, AvgTimeToFull=95), charging("1:35")),
    Case("full without adapter", machine(battery={"FullyCharged": True}), discharging("0:00")),
    Case("charging without adapter", machine(battery={"IsCharging": True, "AvgTimeToFull": 5}), charging("0:05")),
    Case("held on the adapter from the start",
         machine(battery={"ExternalConnected": True}, steps=[
             battery_step(IsCharging=True, AvgTimeToFull=95), battery_step(IsCharging=False, AvgTimeToFull=20)]),
         texts(0, "", "Chargin with", "Time until empty", "") + charging("1:35", line=1) + charging("1:35", line=2)),
    Case("adapter flag as a text of the view", pack_machine(**FULL), launch(("AdapterConnected", "Connected"))),
    Case("no adapter", pack_machine(ExternalConnected=None), launch(("AdapterConnected", "Not connected"))),
]

ADAPTERS = [
    Case("real without fraction", adapter({"Watts": 60.0}), launch(("AdapterWatt", "60 Watts"))),
    Case("real with fraction", adapter({"Watts": 61.5}), launch(("AdapterWatt", "61.5 Watts"))),
    Case("integer", adapter({"Watts": 60}), launch(("AdapterWatt", "60 Watts"))),
    Case("boolean", adapter({"Watts": True}), launch(("AdapterWatt", "1 Watts"))),
    Case("text", adapter({"Watts": "60"}), launch(("AdapterWatt", "60 Watts"))),
    Case("0 is given", adapter({"Watts": 0}), launch(("AdapterWatt", "0 Watts"))),
    Case("no watts", adapter({"Name": "Brick"}), launch(("AdapterWatt", None))),
    Case("pulled out", machine(battery=pack(), AdapterDetails={"Watts": 60}, steps=[{"Remove": ["AdapterDetails"]}]),
         [(0, "battery/AdapterWatt", "60 Watts"), (1, "battery/AdapterWatt", None)]),
]


def closed(line):
    return [(line, "battery/" + name, value) for name, value in [
        ("SerialNumber", ""), ("CycleCount", 0), ("StateOfCharge", "nan"), ("TimeRemaining", "0:00"),
        ("BatteryState", "Discharging..."), ("Temperature", "0.0 °C"), ("voltage", 0), ("isACPowered", False)]]


LIFE = [
    Case("closed: every value is missing",
         machine(battery=pack(**CHARGING), steps=[{"Actions": ["battery.close"]}, {"Actions": ["battery.open"]}]),
         closed(1) + [(1, "statusItem/title", "nan%"), (2, "battery/CycleCount", 300)]),
    Case("entry vanishes: the object stays",
         machine(battery=pack(), steps=[{"Remove": ["Registry/AppleSmartBattery"]}]), closed(1)),
    Case("entry put back is read again",
         machine(battery=pack(), steps=[{"Remove": ["Registry/AppleSmartBattery"]}, battery_step(CycleCount=301)]),
         [(2, "battery/CycleCount", 301)]),
    Case("a battery that comes later is not picked up",
         machine(steps=[{"Registry": {"AppleSmartBattery": pack()}, "Actions": ["battery.toggleAge", "battery.open"]}]),
         [(0, "battery", None), (1, "battery", None), (1, "statusItem/title", ""),
          (1, "statusItem/image", "AppIconBW"), (1, "bars", None), (1, "app/menuView", "noBatteryView")]),
    Case("modes are read at the start and on request only",
         machine(battery=pack(), steps=[{"Defaults": {"standard": {"QDBatteryAgeMode": 2}}},
                                        {"Actions": ["battery.loadSettings"]}]),
         [(0, "battery/ageMode", 0), (1, "battery/ageMode", 0), (2, "battery/ageMode", 2)]),
    Case("power sources that cannot be asked", machine(battery=pack(), PowerSources=None), ABORT),
    Case("no power sources", machine(battery=pack()), launch(("raw", []), ("BatteryHealth", ""))),
    Case("no battery and no power sources", machine(PowerSources=None), [(0, "battery", None)]),
]


def stored_mode(key, value, battery=None):
    return machine(battery=battery, standard={key: value})


MODES = [
    Case("temperature mode out of range, even without battery", stored_mode("QDBatteryTemperatureMode", 3), ABORT),
    Case("age mode out of range, even without battery", stored_mode("QDBatteryAgeMode", -1), ABORT),
    Case("text out of range", stored_mode("QDBatteryAgeMode", "7"), ABORT),
    Case("real is cut", stored_mode("QDBatteryTemperatureMode", 1.9, pack()),
         launch(("temperatureMode", 1), ("Temperature", "85.9 °F"))),
    Case("text counts", stored_mode("QDBatteryAgeMode", " 2x", pack()), launch(("ageMode", 2))),
    Case("other text is 0", stored_mode("QDBatteryAgeMode", "x", pack()), launch(("ageMode", 0))),
    Case("boolean counts", stored_mode("QDBatteryTemperatureMode", True, pack()), launch(("temperatureMode", 1))),
    Case("array is 0", stored_mode("QDBatteryAgeMode", [2], pack()), launch(("ageMode", 0))),
    Case("computer's mode from a text", stored_mode("QDMacAgeMode", "2"), [(0, "mac/ageMode", 2)]),
    Case("computer's mode is never out of range", stored_mode("QDMacAgeMode", 5), [(0, "mac/ageMode", 5)]),
]

IDENTITY = [
    Case("nothing known", pack_machine(BatterySerialNumber=None),
         launch(("SerialNumber", ""), ("DeviceName", None), ("Manufacturer", None), ("ManufacturerRaw", None))),
    Case("manufacturer's code is written out", pack_machine(Manufacturer="SMP", DeviceName="bq20z451"),
         launch(("Manufacturer", "Simplo"), ("ManufacturerRaw", "SMP"), ("DeviceName", "bq20z451"))),
    Case("a packed date of any size is written whole", pack_machine(BatterySerialNumber="ABC",
                                                                    ManufactureDate=58481155946291),
         launch(("BatteryID", hashlib.md5(b"ABC58481155946291").hexdigest()))),
    Case("packed date", pack_machine(ManufactureDate=17506), launch(("ManufactureDate", "2014-03-02T00:00:00+00:00"))),
    Case("no packed date", pack_machine(), launch(("ManufactureDate", "1979-11-30T00:00:00+00:00"))),
    Case("packed date is local midnight", pack_machine(ManufactureDate=17506),
         launch(("ManufactureDate", "2014-03-02T00:00:00+01:00")), {"TZ": "Europe/Berlin"}),
    Case("age before manufacture rounds away from zero",
         machine(battery=pack(ManufactureDate=17506), standard={"QDBatteryAgeMode": 2},
                 Now=datetime.datetime(2013, 12, 2)), launch(("CustomAge", "-0.3 years"), ("LegacyAgeInMonths", -3))),
    Case("the battery's age grows", machine(battery=pack(ManufactureDate=17506), Now=datetime.datetime(2014, 3, 3),
                                            steps=[{"Now": datetime.datetime(2014, 4, 12)}]),
         [(0, "battery/CustomAge", "1 days"), (1, "battery/CustomAge", "41 days")]),
    Case("whole years keep their point", machine(battery=pack(ManufactureDate=17506), Now=datetime.datetime(2016, 3, 2),
                                                 steps=[{"Actions": ["battery.toggleAge"] * 2}]),
         [(1, "battery/CustomAge", "2.0 years"), (1, "defaults/standard/QDBatteryAgeMode", 2)]),
]

DETAILS = [
    Case("values as texts", machine(battery=pack(), PowerSources=[
        {"BatteryHealth": "Good", "yes": True, "one": 1, "no": False, "zero": 0, "two": 2, "real": 1.5, "text": "1"}]),
         launch(("raw", [{"BatteryHealth": "Good", "yes": "YES", "one": "YES", "no": "NO", "zero": "NO", "two": "2",
                          "real": "1.5", "text": "1"}]), ("BatteryHealth", "Good"))),
    Case("health is the first row's and stays", machine(battery=pack(), PowerSources=[{"BatteryHealth": "Fair"}, {}],
                                                        steps=[{"PowerSources": [{}, {"BatteryHealth": "Good"}]}]),
         [(0, "battery/BatteryHealth", "Fair"), (1, "battery/BatteryHealth", "Fair")]),
]

CASES = IDENTITY + DETAILS + NUMBERS + FIGURES + RATED_CAPACITIES + TEMPERATURES + STATES + ADAPTERS + LIFE + MODES
