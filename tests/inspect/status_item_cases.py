from machine_case import Case, battery_step, machine

UP = "\u2b06\ufe0e"
DOWN = "\u2b07\ufe0e"


def charge(current, full=100, health=100, **changes):
    """A pack at current / full, with so much of its design capacity left."""
    return {"CurrentCapacity": current, "MaxCapacity": full, "DesignCapacity": full * 100 // health,
            "ExternalConnected": False, **changes}


def titled(template, battery, **suite):
    return machine(battery=battery, suite={"customStatusBar": template, **suite})


def title(text, line=0):
    return [(line, "statusItem/title", text)]


def template_case(name, template, battery, text, **suite):
    return Case(name, titled(template, battery, **suite), title(text))


FULL = charge(100, ExternalConnected=True, FullyCharged=True)

TITLES = [
    Case("default template", machine(battery=charge(87)), title("87.0%")),
    Case("set as an interim text, then twice; refreshed twice at launch", machine(battery=charge(87)),
         [(0, "statusItem/titlesSet", ["100 %", "87.0%", "87.0%"] * 2), (0, "app/refreshes", 2),
          (0, "statusItem/fontSize", 12.0)]),
    Case("titles of a step only", machine(battery=charge(87), steps=[battery_step(CurrentCapacity=86)]),
         [(1, "statusItem/titlesSet", ["100 %", "86.0%", "86.0%"]), (1, "app/refreshes", 1)]),
    Case("no battery", machine(suite={"customStatusBar": "%p text"}),
         title("") + [(0, "statusItem/titlesSet", ["", ""]), (0, "statusItem/fontSize", 12.0)]),
    template_case("ties go to even", "%p", charge(349, 400), "87.2"),
    template_case("not a number", "%p%", {}, "nan%"),
    template_case("infinite", "%p%", charge(1, 0) | {"DesignCapacity": 1}, "inf%"),
    template_case("text without placeholders", "%1 %2 %n 100%", charge(5), "%1 %2 %n 100%"),
    template_case("markup and mnemonics stay", "<b>&x %p", charge(5), "<b>&x 5.0"),
    template_case("empty template", "", charge(5), ""),
    template_case("all placeholders", "%t|%s|%r|%p|%w|%mA|%l",
                  charge(50, Temperature=3031, AvgTimeToEmpty=95, Voltage=12500, Amperage=-1600, CycleCount=7),
                  f"30.0|{DOWN}|1:35|50.0|20.0|-1600|7"),
    template_case("every occurrence", "%p %p", charge(5), "5.0 5.0"),
    template_case("current is the average one", "%mA %m", charge(5, Amperage=-1600, InstantAmperage=-1500), "-1600 %m"),
    template_case("title's temperature is Celsius for any other index", "%t", charge(5, Temperature=3031), "30.0",
                  temperatureSettingIndex=2),
    template_case("title's temperature is missing", "%t", charge(5), "0.0", temperatureSettingIndex=1),
    template_case("negative zero", "%t", charge(5, Temperature=2731), "-0.0"),
    template_case("upward while charging", "%s %r", charge(5, IsCharging=True, AvgTimeToFull=95), f"{UP} 1:35"),
    template_case("downward when full", "%s", FULL, DOWN),
    template_case("an emptied time joins a placeholder", "%%rp", FULL, "100.0"),
    template_case("temperature has had its turn", "%%rt", FULL, "%t"),
    template_case("direction has had its turn", "%%rs", FULL, "%s"),
    template_case("current has not", "%%rmA", FULL | {"Amperage": 12}, "12"),
    Case("template of another type", machine(battery=charge(87), suite={"customStatusBar": 5}), title("87.0%")),
    Case("template changed by another process", machine(battery=charge(87), steps=[
        {"Defaults": {"group.fernhollow.Quindle": {"customStatusBar": "%l"}}}]), title("0", 1)),
    Case("wake reads flags afresh, figures only at the battery's refresh",
         machine(battery=charge(50), suite={"customStatusBar": "%s%p"}, steps=[
             battery_step(CurrentCapacity=60, IsCharging=True) | {"Actions": ["wake"]}]),
         [(1, "statusItem/titlesSet", ["100 %", UP + "50.0", UP + "50.0", "100 %", UP + "60.0", UP + "60.0"])]),
    Case("sleep does nothing", machine(battery=charge(50), steps=[{"Actions": ["sleep"]}]), [(1, "app/refreshes", 1)]),
    Case("changed settings refresh at once", machine(battery=charge(50), steps=[
        {"Actions": ["SettingsChangedNotification"]}]), [(1, "app/refreshes", 2)]),
    Case("an update about to happen does nothing", machine(battery=charge(50), steps=[
        {"Actions": ["WillUpdateImmediately"]}]), [(1, "app/refreshes", 1)]),
    Case("of ten thousand characters 4,096 count", titled("😀ש%p\n" * 2000, charge(5)),
         title("😀ש5.0\n" * 682 + "😀ש%")),
]


def icons_on(battery, *steps):
    return machine(battery=battery, suite={"showIconsInMenuBar": 1}, steps=list(steps))


def image(name, line=0):
    return [(line, "statusItem/image", name)]


def band(current, name, **changes):
    return Case(f"icon at {current} {changes}", icons_on(charge(current, 10000, **changes)), image(name))


def shown(setting):
    return {"Defaults": {"group.fernhollow.Quindle": {"showIconsInMenuBar": setting}}}


ADAPTER = {"ExternalConnected": True}

ICONS = [
    band(0, "#bat04"), band(1999, "#bat04"), band(2000, "#bat14"), band(3999, "#bat14"), band(4000, "#bat24"),
    band(6999, "#bat24"), band(7000, "#bat34"), band(8999, "#bat34"), band(9000, "#bat44"), band(12000, "#bat44"),
    band(-500, "#bat04"),
    band(7999, "#bat04Charge", **ADAPTER), band(8000, "#bat44Charge", **ADAPTER),
    band(8000, "#bat44Charge", IsCharging=True), band(100, "#bat04Charge", IsCharging=True),
    Case("infinite charge", icons_on({"CurrentCapacity": 1, "MaxCapacity": 0}), image("#bat44")),
    Case("charge that is no number", icons_on({}), image("#bat04")),
    Case("no icon unless asked for", machine(battery=charge(50)),
         image(None) + [(0, "statusItem/imageSize", None), (0, "statusItem/imageIsTemplate", False)]),
    Case("no icon for another value", machine(battery=charge(50), suite={"showIconsInMenuBar": 2}), image(None)),
    Case("size", icons_on(charge(50)), [(0, "statusItem/imageSize", [21.0, 21.0])]),
    Case("no battery, whatever the setting", machine(suite={"showIconsInMenuBar": 0}),
         image("AppIconBW") + [(0, "statusItem/imageIsTemplate", False), (0, "statusItem/imageSize", [21.0, 21.0])]),
    Case("the icon uses the figures of the last refresh and the flags of now",
         icons_on(charge(95), battery_step(CurrentCapacity=5, ExternalConnected=True) | {"Actions": ["wake"]}),
         image("#bat04Charge", 1)),
    Case("the mark stays with the name",
         icons_on(charge(50), battery_step(CurrentCapacity=10), {}, battery_step(CurrentCapacity=50), shown(0), shown(1),
                  battery_step(CurrentCapacity=90)),
         [(line, "statusItem/imageIsTemplate", wanted)
          for line, wanted in enumerate([True, False, True, True, False, True, False])] + image(None, 4)),
]


def bars(charge_bar, health_bar, line=0):
    return [(line, "bars/stateOfCharge", charge_bar), (line, "bars/stateOfHealth", health_bar)]


def bar_case(current, full, design, charge_bar, health_bar):
    battery = {"CurrentCapacity": current, "MaxCapacity": full, "DesignCapacity": design}
    return Case(f"bars at {current} of {full}, design {design}", machine(battery=battery), bars(charge_bar, health_bar))


BARS = [
    bar_case(400, 1000, 1000, "green", "green"), bar_case(399, 1000, 1000, "yellow", "green"),
    bar_case(200, 1000, 1000, "yellow", "green"), bar_case(199, 1000, 1000, "red", "green"),
    bar_case(0, 1000, 1000, "red", "green"), bar_case(300, 1000, 1250, "yellow", "green"),
    bar_case(600, 1000, 1300, "green", "red"), bar_case(610, 1000, 1300, "green", "yellow"),
    bar_case(799, 1000, 1300, "green", "yellow"), bar_case(800, 1000, 1300, "green", "red"),
    bar_case(1000, 1000, 1300, "green", "red"), bar_case(300, 1000, 1300, "yellow", "red"),
    bar_case(0, 0, 0, "green", "green"), bar_case(1, 0, 0, "green", "red"),
    Case("negative charge leaves the bars", machine(battery=charge(30, health=70), steps=[
        battery_step(CurrentCapacity=-5)]), bars("yellow", "red") + bars("yellow", "red", 1)),
    Case("no number leaves the bars", machine(battery=charge(30, health=70), steps=[
        battery_step(CurrentCapacity=0, MaxCapacity=0)]), bars("yellow", "red", 1)),
    Case("no bars without a battery", machine(), [(0, "bars", None), (0, "app/menuView", "noBatteryView")]),
    Case("the battery's view", machine(battery=charge(5)), [(0, "app/menuView", "menuView")]),
]

CASES = TITLES + ICONS + BARS
