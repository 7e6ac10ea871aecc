"""A private headless desktop with a real tray host, for screenshots and for the desktop tests.

Every run has its own X server (or Wayland compositor), D-Bus session, home and runtime folders, and ends exactly
the processes it started: they all carry its mark in their environment.
"""

import os
import re
import shutil
import signal
import subprocess
import tempfile
import time
import uuid
from pathlib import Path

MARK = "QUINDLE_DESKTOP_RUN"
ITEM = "/StatusNotifierItem"
ITEM_INTERFACE = "org.kde.StatusNotifierItem"
WATCHER = "org.kde.StatusNotifierWatcher"
UNSHARE = ["unshare", "--user", "--map-user=1000", "--map-group=1000"]
NOBODY = 65534


def wait_for(condition, seconds=30.0, pause=0.05):
    """The first true value of condition() within that many seconds, else its last value."""
    end = time.monotonic() + seconds
    while True:
        value = condition()
        if value or time.monotonic() > end:
            return value
        time.sleep(pause)


def start_message_bus(start, *options):
    """Starts a message bus by `start(command..., pass_fds=...)`, as subprocess.Popen does; the process and its address."""
    read_end, write_end = os.pipe()
    daemon = start("dbus-daemon", *(options or ("--session",)), "--nofork", f"--print-address={write_end}",
                   pass_fds=(write_end,))
    os.close(write_end)
    with os.fdopen(read_end) as stream:
        address = stream.readline().strip()
    assert address, "the bus did not start"
    return daemon, address


def may_unshare():
    return subprocess.run([*UNSHARE, "true"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                          check=False).returncode == 0


class Desktop:
    """Use as `with Desktop("xfce") as desktop:`. Hosts: xfce, tint2 (XEmbed), lxqt, mate, waybar (Wayland), none."""

    def __init__(self, host, geometry="640x480", scale=1, panel_height=28, keep_log=None, background="#4a6a8a",
                 dark=None, compositor=False, pointer=False):
        """`dark` chooses the panel's colours (None: the host's own); `compositor` lets windows be translucent;
        `pointer` gives the Wayland compositor a mouse, by making it a window of an X server."""
        self.host = host
        self.geometry = geometry
        self.scale = scale
        self.panel_height = panel_height
        self.background = background
        self.dark = dark
        self.compositor = compositor
        self.pointer = pointer
        self.id = uuid.uuid4().hex
        self.root = Path(tempfile.mkdtemp(prefix="quindle-desktop-"))
        self.log_path = Path(keep_log) if keep_log else self.root / "log"
        self.is_wayland = host == "waybar"
        # The compositor refuses to run as root. A user namespace gives everything another number for the same
        # account; where that is not allowed (containers), compositor and bar run as nobody.
        self.prefix = []
        self.compositor_prefix = []
        if self.is_wayland and os.geteuid() == 0:
            if may_unshare():
                self.prefix = UNSHARE
            else:
                self.compositor_prefix = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]
        self.env = self._environment()
        self.panel = None

    def _environment(self):
        env = {key: value for key, value in os.environ.items()
               if key in ("PATH", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS", "QT_LOGGING_RULES",
                          "QT_WAYLAND_CLIENT_BUFFER_INTEGRATION")}
        folders = {"HOME": "home", "XDG_CONFIG_HOME": "config", "XDG_CACHE_HOME": "cache", "XDG_DATA_HOME": "data",
                   "XDG_RUNTIME_DIR": "runtime"}
        for key, name in folders.items():
            folder = self.root / name
            folder.mkdir()
            env[key] = str(folder)
        os.chmod(env["XDG_RUNTIME_DIR"], 0o700)
        if self.compositor_prefix:
            os.chmod(self.root, 0o755)
            for name in folders.values():
                os.chown(self.root / name, NOBODY, NOBODY)
        env.update({MARK: self.id, "LANG": "C.UTF-8", "LC_ALL": "C.UTF-8", "NO_AT_BRIDGE": "1", "GTK_A11Y": "none",
                    "GSETTINGS_BACKEND": "keyfile", "LIBGL_ALWAYS_SOFTWARE": "1", "TZ": "UTC",
                    "XDG_CURRENT_DESKTOP": {"xfce": "XFCE", "lxqt": "LXQt", "mate": "MATE", "waybar": "sway"}.get(self.host, "")})
        if self.dark is not None:
            env["GTK_THEME"] = "Adwaita:dark" if self.dark else "Adwaita"
        if self.scale != 1:
            env["QT_SCALE_FACTOR"] = str(self.scale)
            env["GDK_SCALE"] = str(self.scale)
        return env

    # ---- start and end

    def __enter__(self):
        self.log = open(self.log_path, "ab")
        try:
            if not self.is_wayland or self.pointer:
                self._start_x()
            self._start_bus()  # programs that the bus starts find the display in its environment
            if self.is_wayland:
                self._start_sway()
            self.start_panel()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        for number in (signal.SIGTERM, signal.SIGKILL):
            for pid in self._own_processes():
                try:
                    os.kill(pid, number)
                except ProcessLookupError:
                    pass
            if not wait_for(lambda: not self._own_processes(), 2.0):
                continue
            break
        self.log.close()
        shutil.rmtree(self.root, ignore_errors=True)

    def _own_processes(self):
        mark = f"{MARK}={self.id}".encode()
        own = []
        for entry in Path("/proc").iterdir():
            if not entry.name.isdigit() or int(entry.name) == os.getpid():
                continue
            try:
                if mark in (entry / "environ").read_bytes().split(b"\0"):
                    own.append(int(entry.name))
            except OSError:
                continue
        return own

    def start(self, *command, env=None, **options):
        """Starts a process on the desktop; its output goes to the log."""
        options.setdefault("stdout", self.log)
        options.setdefault("stderr", self.log)
        return subprocess.Popen([*self.prefix, *map(str, command)], env={**self.env, **(env or {})},
                                stdin=subprocess.DEVNULL, **options)

    def call(self, *command, seconds=60, env=None):
        """Runs a command on the desktop and returns what it prints."""
        done = subprocess.run([*self.prefix, *map(str, command)], env={**self.env, **(env or {})},
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=self.log, timeout=seconds,
                              check=False, text=True)
        return done.stdout.strip()

    # ---- parts of the desktop

    def _start_bus(self):
        options = []
        if self.compositor_prefix:
            path = self.root / "bus.conf"
            path.write_text(BUS_OF_TWO_ACCOUNTS.format(folder=self.root))
            options = [f"--config-file={path}"]
        _, self.env["DBUS_SESSION_BUS_ADDRESS"] = start_message_bus(self.start, *options)

    def _start_x(self):
        read_end, write_end = os.pipe()
        self.start("Xvfb", "-displayfd", write_end, "-screen", "0", f"{self.geometry}x24", "-nolisten", "tcp",
                   pass_fds=(write_end,))
        os.close(write_end)
        with os.fdopen(read_end) as stream:
            self.env["DISPLAY"] = ":" + stream.readline().strip()
        self.env["XDG_SESSION_TYPE"] = "x11"
        if self.is_wayland:
            return
        self._start_window_manager()
        self.call("xsetroot", "-solid", self.background)
        if self.compositor:  # it shows the background only from a picture
            self.call("hsetroot", "-solid", self.background)
            self.start("xcompmgr", "-n")
            time.sleep(0.5)

    def _start_window_manager(self):
        """Without one no window ever has the keyboard."""
        for _ in range(3):
            process = self.start("openbox")
            if wait_for(lambda: "window id" in self.call("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")):
                return
            process.kill()
            process.wait()
        raise RuntimeError("the window manager does not start:\n" + self.log_path.read_text(errors="replace")[-2000:])

    def _start_sway(self):
        self.env.update({"XDG_SESSION_TYPE": "wayland", "WLR_BACKENDS": "x11" if self.pointer else "headless",
                         "WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1"})
        config = self.root / "sway.conf"
        config.write_text(f"output * resolution {self.geometry} position 0,0 scale {self.scale} "
                          f"bg {self.background} solid_color\nxwayland disable\ndefault_border none\n")
        self.env.pop("QT_SCALE_FACTOR", None)
        self.env.pop("GDK_SCALE", None)
        self.start(*self.compositor_prefix, "sway", "-c", config)
        runtime = Path(self.env["XDG_RUNTIME_DIR"])
        socket = wait_for(lambda: next(runtime.glob("sway-ipc.*.sock"), None))
        display = wait_for(lambda: next((path for path in runtime.glob("wayland-?")), None))
        self.env["SWAYSOCK"] = str(socket)
        self.env["WAYLAND_DISPLAY"] = display.name

    def start_panel(self):
        """Starts the tray host and waits until it is there; also after `kill_panel`."""
        if self.host == "none":
            return
        getattr(self, f"_start_{self.host}")()

    def kill_panel(self):
        """Kills the tray host with the helper processes of its own that hold its tray; of this desktop only."""
        self.panel.kill()
        self.panel.wait()
        for pid in self._own_processes():
            if re.search("panel/wrapper|notification-area-applet", self._command_line(pid)):
                os.kill(pid, signal.SIGKILL)
        if self.host != "tint2":
            wait_for(lambda: not self.has_name(WATCHER))

    @staticmethod
    def _command_line(pid):
        try:
            return Path(f"/proc/{pid}/cmdline").read_bytes().replace(b"\0", b" ").decode(errors="replace")
        except OSError:
            return ""

    def _start_xfce(self):
        folder = Path(self.env["XDG_CONFIG_HOME"]) / "xfce4/xfconf/xfce-perchannel-xml"
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "xfce4-panel.xml").write_text(XFCE_PANEL.format(size=self.panel_height))
        self.panel = self.start("xfce4-panel", "--disable-wm-check")
        self._wait_for_watcher()

    def _start_lxqt(self):
        folder = Path(self.env["XDG_CONFIG_HOME"]) / "lxqt"
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "panel.conf").write_text(LXQT_PANEL.format(size=self.panel_height))
        self.panel = self.start("lxqt-panel")
        self._wait_for_watcher()

    def _start_mate(self):
        folder = Path(self.env["XDG_CONFIG_HOME"]) / "glib-2.0/settings"
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "keyfile").write_text(MATE_PANEL.format(size=self.panel_height))
        self.panel = self.start("mate-panel", "--replace")
        self._wait_for_watcher()

    def _start_tint2(self):
        config = self.root / "tint2rc"
        config.write_text(TINT2_PANEL.format(size=self.panel_height, colour=self._panel_colour()))
        self.panel = self.start("tint2", "-c", config)
        wait_for(lambda: "window id" in self.call("xprop", "-root", "_NET_SYSTEM_TRAY_S0")
                 or "tint2" in self.call("xwininfo", "-root", "-tree"))
        time.sleep(0.5)

    def _start_waybar(self):
        config = self.root / "waybar.json"
        style = self.root / "waybar.css"
        config.write_text(WAYBAR_PANEL % self.panel_height)
        style.write_text("* {font-family: DejaVu Sans; font-size: 13px;} "
                         f"window#waybar {{background: {self._panel_colour()};}}")
        self.panel = self.start(*self.compositor_prefix, "waybar", "-c", config, "-s", style, env={"GDK_BACKEND": "wayland"})
        self._wait_for_watcher()

    def _panel_colour(self):
        return "#f0f1f3" if self.dark is False else "#222222"

    def _wait_for_watcher(self):
        if not wait_for(lambda: self.has_name(WATCHER), 60.0):
            raise RuntimeError(f"{self.host}: no status notifier watcher appeared")
        time.sleep(0.3)

    # ---- questions

    def gdbus(self, destination, path, method, *arguments):
        return self.call("gdbus", "call", "--session", "--timeout", "20", "--dest", destination, "--object-path", path,
                         "--method", method, "--", *arguments)

    def has_name(self, name):
        return "true" in self.gdbus("org.freedesktop.DBus", "/", "org.freedesktop.DBus.NameHasOwner", name)

    def process_of(self, name):
        answer = self.gdbus("org.freedesktop.DBus", "/", "org.freedesktop.DBus.GetConnectionUnixProcessID", name)
        found = re.search(r"uint32 (\d+)", answer)
        return int(found.group(1)) if found else None

    def registered_items(self):
        """Bus names of the items that the watcher knows."""
        answer = self.gdbus(WATCHER, "/StatusNotifierWatcher", "org.freedesktop.DBus.Properties.Get", WATCHER,
                            "RegisteredStatusNotifierItems")
        return [re.split(r"[@/]", text)[0] for text in re.findall(r"'([^']+)'", answer)]

    def item_name(self, seconds=30.0):
        """The bus name of the one registered item; None when it does not appear in time."""
        items = wait_for(self.registered_items, seconds)
        return items[0] if items else None

    def item_property(self, name):
        """A property of the item, as gdbus prints it."""
        destination = self.item_name()
        if not destination:
            return ""
        return self.gdbus(destination, ITEM, "org.freedesktop.DBus.Properties.Get", ITEM_INTERFACE, name)

    def item_title(self):
        found = re.search(r"<(['\"])(.*)\1>", self.item_property("Title"), re.S)
        return found.group(2) if found else None

    def menu(self):
        """The item's menu, as gdbus prints it."""
        return self.gdbus(self.item_name(), "/MenuBar", "com.canonical.dbusmenu.GetLayout", "0", "-1", "[]")

    def choose(self, label):
        """Chooses an entry of the menu, as a panel does that draws it."""
        row = re.search(r"\((\d+), \{[^{}]*'label': <'" + re.escape(label) + "'>", self.menu()).group(1)
        self.gdbus(self.item_name(), "/MenuBar", "com.canonical.dbusmenu.Event", row, "clicked", "<0>", "0")

    def activate_item(self):
        self.gdbus(self.item_name(), ITEM, ITEM_INTERFACE + ".Activate", "0", "0")

    def windows(self, pattern="quindle-helper"):
        """X11: ids of the visible windows of a class."""
        return self.call("xdotool", "search", "--onlyvisible", "--class", pattern).split()

    def panel_text_colour(self):
        """X11: the colour that the panel with the tray says it writes in, as #RRGGBB; empty if it says nothing."""
        colours = self.call("sh", "-c", "for id in $(xwininfo -root -tree | grep -o '0x[0-9a-f]*' | sort -u); do "
                                        "xprop -id $id _NET_SYSTEM_TRAY_COLORS; done")
        found = re.search(r"= (\d+), (\d+), (\d+)", colours)
        return "#" + "".join(f"{int(value) >> 8:02X}" for value in found.groups()) if found else ""

    def click(self, x, y, button=1):
        self.call("xdotool", "mousemove", x, y, "click", button)

    def key(self, name):
        self.call("xdotool", "key", name)

    def screenshot(self, path):
        if self.is_wayland:
            self.call("grim", path)
        else:
            self.call("import", "-silent", "-window", "root", path)
        return Path(path).exists()


BUS_OF_TWO_ACCOUNTS = """<busconfig>
 <type>session</type>
 <listen>unix:tmpdir={folder}</listen>
 <auth>EXTERNAL</auth>
 <policy context="default">
  <allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/><allow user="*"/>
 </policy>
</busconfig>
"""

XFCE_PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
 <property name="configver" type="int" value="2"/>
 <property name="panels" type="array"><value type="int" value="1"/>
  <property name="panel-1" type="empty">
   <property name="position" type="string" value="p=6;x=0;y=0"/>
   <property name="length" type="uint" value="100"/>
   <property name="position-locked" type="bool" value="true"/>
   <property name="size" type="uint" value="{size}"/>
   <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
  </property>
 </property>
 <property name="plugins" type="empty">
  <property name="plugin-1" type="string" value="systray">
   <property name="square-icons" type="bool" value="false"/>
   <property name="hide-new-items" type="bool" value="false"/>
  </property>
 </property>
</channel>
"""

LXQT_PANEL = """[General]
__userfile__=true
panels=panel1

[panel1]
plugins=statusnotifier
position=Top
panelSize={size}
iconSize=22

[statusnotifier]
type=statusnotifier
"""

MATE_PANEL = """[org/mate/panel/general]
toplevel-id-list=['top']
object-id-list=['tray']
[org/mate/panel/toplevels/top]
expand=true
orientation='top'
screen=0
size={size}
y=0
[org/mate/panel/objects/tray]
applet-iid='NotificationAreaAppletFactory::NotificationArea'
locked=true
object-type='applet'
panel-right-stick=false
position=10
toplevel-id='top'
"""

TINT2_PANEL = """rounded = 0
border_width = 0
background_color = {colour} 100
panel_items = S
panel_size = 100% {size}
panel_position = top left horizontal
panel_background_id = 1
systray_padding = 2 2 4
systray_sort = ascending
systray_icon_size = 0
systray_background_id = 0
"""

WAYBAR_PANEL = """{"layer":"top","position":"top","height":%d,"modules-left":["tray"],
"tray":{"icon-size":21,"spacing":8,"show-passive-items":true}}
"""
