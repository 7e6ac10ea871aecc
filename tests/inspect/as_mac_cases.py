"""Registries of real Macs as the back end for Macs lays them out: what a person reads off the dump.

charge as the Mac's own menu bar has it where it gives a percentage; health: full charge of design capacity, in percent;
power in watts; temperature in degrees Celsius; time in hours and minutes. None: the dump does not say.
"""

import os
import plistlib

from machine_case import Case, machine

FOLDER = os.path.join(os.path.dirname(__file__), "..", "data", "ioreg")


def row(charge, health, power, cycles, temperature, state, time):
    return charge, health, power, cycles, temperature, state, time


NO_BATTERY = None
CHARGING, DISCHARGING, CHARGED = "Charging...", "Discharging...", "Charged"
HELD = ""  # on the adapter, neither charging nor full: a state without a word

DUMPS = {
    "imac18-3-no-battery": NO_BATTERY,
    "macmini8-1-no-battery": NO_BATTERY,
    "macstudio-m4max-ghost-battery": NO_BATTERY,
    "macbook8-1-2015": row("92.1", 86.8, 14.91, 86, "27.1 °C", DISCHARGING, "2:26"),
    "macbook9-1-2016": row("40.3", 96.4, 4.69, 65, "35.7 °C", DISCHARGING, "3:29"),
    "macbookair-2012-full": row("100.0", 100.3, 0.0, 8, "31.0 °C", DISCHARGING, ""),
    "macbookair3-1-2010": row("54.7", 95.8, 8.65, 51, "26.3 °C", DISCHARGING, "2:08"),
    "macbookair4-1-2011": row("89.6", 90.3, 10.27, 333, "19.5 °C", DISCHARGING, "2:57"),
    "macbookpro-retina15-2012": row("85.3", 95.9, 18.26, 325, "36.3 °C", DISCHARGING, "4:31"),
    "macbookpro11-3-2013-heavy-load": row("34.0", 94.7, 58.92, 292, "40.6 °C", DISCHARGING, "0:30"),
    "macbookpro12-1-2015-blog": row("80.8", 89.8, 12.61, 155, "26.0 °C", DISCHARGING, "4:31"),
    "macbookpro13-3-2016": row("24.7", 96.8, 8.70, 79, "24.3 °C", DISCHARGING, "2:01"),
    "macbookpro14-1-2017-charging": row("44.0", 96.5, 40.49, 44, "26.0 °C", CHARGING, "1:43"),
    "macbookpro15-1-2018": row("94.0", 95.4, 43.90, 68, "29.5 °C", DISCHARGING, "1:46"),
    "macbookpro15-2011-charging-error-noted": row("84.6", 98.6, 31.08, 46, "36.3 °C", CHARGING, "0:54"),
    "macbookpro8-1-2011-full": row("100.0", 93.6, 3.24, 213, "34.5 °C", CHARGED, ""),
    "macbookpro9-1-2012-new": row("78.8", 102.3, 15.73, 6, "35.0 °C", DISCHARGING, "4:10"),
    "macbookpro9-2-2012": row("99.5", 100.1, 0.0, 7, "24.0 °C", CHARGED, ""),
    "macbookpro17-1-m1-2020-full": row("100.0", 101.0, 0.0, 10, "33.3 °C", CHARGED, ""),
    "macbookpro-m1pro-macos15": row("59.0", 93.9, 64.09, 39, "38.4 °C", CHARGING, "1:02"),
    "macbookpro-m2max-macos15-low": row("8.0", 93.2, 5.91, 141, "35.6 °C", DISCHARGING, "0:35"),
    "macbookair-m2-onbattery-trimmed": row("78.0", 87.2, 7.10, 338, "31.3 °C", DISCHARGING, "4:56"),
    "macbookpro-m2pro-macos26": row("80.0", 95.1, 0.0, 98, "29.7 °C", HELD, ""),
    "macbookair-m4-macos26": row("80.0", 91.1, 0.0, 123, "26.8 °C", HELD, ""),
    "macbookpro-m4pro-macos15-onbattery": row("100.0", 97.1, 0.0, 124, "28.2 °C", DISCHARGING, ""),
    "macbookpro16-m4max-macos26": row("78.0", 99.6, 46.94, 67, "37.1 °C", CHARGING, "1:10"),
    "macbookpro-m5-macos26": row("79.0", 101.6, 0.0, 5, "37.2 °C", HELD, ""),
    "macbookair-m2-macos27-charging": row("34.0", 97.0, 23.91, 37, None, CHARGING, "2:40"),
    # Parts of dumps, without a full charge.
    "macbookpro-m4pro-16-70w-beginning": row(None, None, None, None, None, None, None),
    "macbookpro18-3-m1pro-charging-45w": row(None, None, 22.97, None, None, CHARGING, "0:00"),
}


def about(wanted, tolerance):
    return lambda actual: abs(actual - wanted) <= tolerance


def expected(figures):
    if figures is NO_BATTERY:
        return [(0, "battery", None), (0, "statusItem/image", "AppIconBW")]
    charge, health, power, cycles, temperature, state, time = figures
    wanted = [("battery/StateOfCharge", about(float(charge), 0.05)), ("statusItem/title", f"{charge}%")] if charge else []
    wanted += [("battery/StateOfHealth", about(health, 0.05))] if health else []
    wanted += [("battery/WattThroughput", about(power, 0.005))] if power is not None else []
    wanted += [(f"battery/{key}", value) for key, value in (("CycleCount", cycles), ("Temperature", temperature),
               ("BatteryState", state), ("TimeRemaining", time)) if value is not None]
    return [(0, path, value) for path, value in wanted]


def entry_of(name):
    with open(os.path.join(FOLDER, f"{name}.plist"), "rb") as file:
        entries = plistlib.load(file)
    return entries[0] if entries else None


CASES = [Case(name, machine(battery=entry_of(name)), expected(figures), arguments=("--as-mac",))
         for name, figures in DUMPS.items()]
MISSING = {name.removesuffix(".plist") for name in os.listdir(FOLDER) if name.endswith(".plist")} ^ set(DUMPS)
assert not MISSING, f"dumps without expectations, or the other way round: {MISSING}"

# Made by hand, of kinds that the dumps lack: (entry, what a person reads off it).
MADE_BY_HAND = {
    "Intel of 2019, its cells' figures in a dictionary beside": ({
        "BatteryInstalled": True, "ExternalConnected": False, "IsCharging": False, "FullyCharged": False,
        "CurrentCapacity": 3300, "MaxCapacity": 5500, "AppleRawCurrentCapacity": 3290, "AppleRawMaxCapacity": 5480,
        "DesignCapacity": 6000, "CycleCount": 210, "Voltage": 11500, "Amperage": -1000, "Temperature": 3021, "AvgTimeToEmpty": 198,
        "BatteryData": {"DesignCapacity": 6100, "FullChargeCapacity": 5490, "CycleCount": 211}},
        row("60.0", 91.7, 11.5, 210, "29.0 °C", DISCHARGING, "3:18")),
    "Intel with a current of 32 bits without its sign": ({
        "CurrentCapacity": 1200, "MaxCapacity": 4800, "DesignCapacity": 5000, "CycleCount": 700, "Voltage": 7500,
        "Amperage": 4294965296, "Temperature": 2981, "AvgTimeToEmpty": 65535},
        row("25.0", 96.0, 15.0, 700, "25.0 °C", DISCHARGING, "")),
    "Apple silicon whose cycles and temperature are elsewhere": ({
        "BatteryInstalled": True, "ExternalConnected": True, "IsCharging": True, "CurrentCapacity": 64, "MaxCapacity": 100,
        "NominalChargeCapacity": 5000, "VirtualTemperature": 3055, "Voltage": 12000, "Amperage": 1500, "AvgTimeToFull": 65535,
        "BatteryData": {"DesignCapacity": 6250, "CycleCount": 12, "Temperature": 3055}},
        row("64.0", 80.0, 18.0, 0, "0.0 °C", CHARGING, "")),
    "Apple silicon at 1 percent with every capacity": ({
        "BatteryInstalled": True, "CurrentCapacity": 1, "MaxCapacity": 100, "AppleRawCurrentCapacity": 190,
        "AppleRawMaxCapacity": 4600, "NominalChargeCapacity": 4700, "DesignCapacity": 5000, "CycleCount": 1, "Voltage": 10800,
        "Amperage": 18446744073709551516, "Temperature": 3000, "AvgTimeToEmpty": 3, "BatteryData": {"FullChargeCapacity": 4650}},
        row("1.0", 92.0, 1.08, 1, "26.9 °C", DISCHARGING, "0:03")),
    "a Mac mini that says with a number that it has none": ({
        "BatteryInstalled": 0, "ExternalConnected": True, "CurrentCapacity": 0, "MaxCapacity": 0, "CycleCount": 0, "Voltage": 0},
        NO_BATTERY),
    "a Mac mini that says only zeros": ({"CurrentCapacity": 0, "MaxCapacity": 0, "DesignCapacity": 0, "Voltage": 0}, NO_BATTERY),
}
CASES += [Case(f"made by hand: {name}", machine(battery=battery), expected(figures), arguments=("--as-mac",))
          for name, (battery, figures) in MADE_BY_HAND.items()]

LATER = {"BatteryInstalled": True, "CurrentCapacity": 50, "MaxCapacity": 100, "AppleRawMaxCapacity": 4000}
CASES.append(Case("a later state", machine(battery=LATER, steps=[{"Registry": {"AppleSmartBattery": {
    "CurrentCapacity": 25, "AppleRawMaxCapacity": 2000}}}]), [
        (0, "battery/CurrentCapacity", 2000), (1, "battery/CurrentCapacity", 500), (1, "statusItem/title", "25.0%")],
    arguments=("--as-mac",)))
CASES.append(Case("without the option", machine(battery=LATER), [(0, "battery/CurrentCapacity", 50)]))
