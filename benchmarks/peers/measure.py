#!/usr/bin/python3
"""Side-by-side measurement of battery indicators on mocked hardware. See README.md."""
import argparse, collections, ctypes, glob, hashlib, json, os, random, re, shlex, shutil, signal
import statistics, subprocess, sys, tempfile, threading, time
import gi
gi.require_version('UMockdev', '1.0')
from gi.repository import Gio, GLib, UMockdev
import Xlib.display, Xlib.X as X, Xlib.error, Xlib.Xatom as Xatom
from Xlib.ext import composite as xcomposite, damage as xdamage, res as xres
from Xlib.protocol import event as xevent

BASE = os.path.dirname(os.path.abspath(__file__))
HZ = os.sysconf('SC_CLK_TCK')
now = time.monotonic


def log(*a):
    print('[%7.1f]' % (now() - T_START), *a, file=sys.stderr, flush=True)


T_START = now()

# ------------------------------------------------------------------ processes
def stat_of(pid):
    try:
        s = open('/proc/%d/stat' % pid).read()
    except OSError:
        return None
    r = s.rindex(')')
    f = s[r + 2:].split()
    return dict(comm=s[s.index('(') + 1:r], state=f[0], ppid=int(f[1]), utime=int(f[11]), stime=int(f[12]),
                cutime=int(f[13]), cstime=int(f[14]), threads=int(f[17]), start=int(f[19]))


def descendants(root=None):
    root = root or os.getpid()
    kids = collections.defaultdict(list)
    st = {}
    for d in os.listdir('/proc'):
        if d.isdigit():
            s = stat_of(int(d))
            if s:
                st[int(d)] = s
                kids[s['ppid']].append(int(d))
    out, todo = {}, [root]
    while todo:
        for k in kids[todo.pop()]:
            out[k] = st[k]
            todo.append(k)
    return out


_tags = {}


def tag_of(pid, start):
    """PEER_ROW of a process (NAME, or svc:NAME for what its private buses started)."""
    if (pid, start) not in _tags:
        try:
            env = open('/proc/%d/environ' % pid, 'rb').read()
        except OSError:
            return None
        m = re.search(rb'(?:^|\0)PEER_ROW=([^\0]*)', env)
        if not m:
            return None            # may be between fork and exec: do not remember
        _tags[(pid, start)] = m.group(1).decode()
    return _tags[(pid, start)]


def tagged():
    out = collections.defaultdict(dict)
    for pid, s in descendants().items():
        if s['state'] in 'ZX':
            continue
        t = tag_of(pid, s['start'])
        if t:
            out[t][pid] = s
    return out


def kv(path, keys):
    out = {}
    try:
        for line in open(path):
            k, _, v = line.partition(':')
            if k in keys:
                out[k] = int(v.split()[0])
    except (OSError, IndexError, ValueError):
        pass
    return out


def memory(pids):
    tot = dict(rss=0, pss=0, uss=0, anon=0, threads=0, procs=0)
    for pid in pids:
        m = kv('/proc/%d/smaps_rollup' % pid, ('Rss', 'Pss', 'Private_Clean', 'Private_Dirty', 'Anonymous'))
        s = stat_of(pid)
        if not m or not s:
            continue
        tot['rss'] += m['Rss']
        tot['pss'] += m['Pss']
        tot['uss'] += m['Private_Clean'] + m['Private_Dirty']
        tot['anon'] += m['Anonymous']
        tot['threads'] += s['threads']
        tot['procs'] += 1
    return tot


BIG = re.compile(r'lib(gtk-3|Qt5Core|Qt6Core|gio-2\.0|gnustep-gui|QtCore)\S*\.so')


def foreign_sharers():
    """Processes that are not ours but map a toolkit library: they make PSS and USS of our rows look smaller."""
    mine = descendants()
    n = 0
    for d in os.listdir('/proc'):
        if d.isdigit() and int(d) not in mine and int(d) != os.getpid():
            try:
                n += bool(BIG.search(open('/proc/%s/maps' % d).read()))
            except OSError:
                pass
    return n


def cpu_sample(pids):
    """(pid, start) -> counters; CPU time from the process's CPU clock (ns, exited threads included)."""
    out = {}
    for pid in pids:
        s = stat_of(pid)
        if not s:
            continue
        try:
            clock = time.clock_gettime_ns((~pid << 3) | 2)      # clock_getcpuclockid(pid), CPUCLOCK_SCHED
        except OSError:
            clock = 0
        thr = {}
        for t in glob.glob('/proc/%d/task/*' % pid):
            v = [0, 0, 0, 0]
            try:
                a = open(t + '/schedstat').read().split()
                v[0], v[1] = int(a[0]), int(a[2])
            except (OSError, IndexError):
                pass
            c = kv(t + '/status', ('voluntary_ctxt_switches', 'nonvoluntary_ctxt_switches'))
            v[2], v[3] = c.get('voluntary_ctxt_switches', 0), c.get('nonvoluntary_ctxt_switches', 0)
            thr[t] = v
        out[(pid, s['start'])] = dict(ticks=s['utime'] + s['stime'], cticks=s['cutime'] + s['cstime'], clock=clock, thr=thr)
    return out


def cpu_delta(a, b):
    tot = dict(ticks=0, cticks=0, clock=0, sched_ns=0, slices=0, vol=0, inv=0)
    for k, v in b.items():
        o = a.get(k, {})
        for f in ('ticks', 'cticks', 'clock'):
            tot[f] += v[f] - o.get(f, 0)
        for t, x in v['thr'].items():
            y = o.get('thr', {}).get(t, [0, 0, 0, 0])
            for i, f in enumerate(('sched_ns', 'slices', 'vol', 'inv')):
                tot[f] += x[i] - y[i]
    tot['cpu_ms'] = tot['clock'] / 1e6 + tot['cticks'] * 1000.0 / HZ
    tot['sched_ms'] = tot['sched_ns'] / 1e6
    tot['ctxt'] = tot['vol'] + tot['inv']
    return tot


def dead(pid, start):
    s = stat_of(pid)
    return not s or s['start'] != start or s['state'] in 'ZX' and s['threads'] <= 1


def terminate(pids, wait=3.0):
    """SIGTERM, then SIGKILL, strictly by PID (with start time, so that a reused PID is never hit)."""
    for sig, t in ((signal.SIGTERM, wait), (signal.SIGKILL, 2.0)):
        live = [(p, s) for p, s in pids if not dead(p, s)]
        if not live:
            break
        for p, _ in live:
            try:
                os.kill(p, sig)
            except OSError:
                pass
        end = now() + t
        while now() < end:
            reap()
            if all(dead(p, s) for p, s in live):
                break
            spin(0.03)
    reap()


def reap():
    """Collect zombies: those of ours that subprocess knows, and orphans given to us as subreaper."""
    known = {p.pid: p for p in POPEN}
    for pid, s in descendants().items():
        if s['state'] == 'Z' and s['ppid'] == os.getpid():
            if pid in known:
                known[pid].poll()
            else:
                try:
                    os.waitpid(pid, os.WNOHANG)
                except OSError:
                    pass


POPEN = []


def popen(argv, **kw):
    p = subprocess.Popen(argv, stdin=subprocess.DEVNULL, start_new_session=True, **kw)
    POPEN.append(p)
    return p


# ------------------------------------------------------------------ main loop
CTX = GLib.MainContext.default()


def spin(seconds, until=None):
    """Run the main loop for up to `seconds`, or until until() holds."""
    end = now() + seconds
    done = []
    src = GLib.timeout_add(max(1, int(seconds * 1000)), lambda: done.append(1) and False)
    try:
        while not done and now() < end:
            if until and until():
                return True
            CTX.iteration(True)
    finally:
        if not done:
            GLib.source_remove(src)
    return bool(until and until())


EVENTS = []          # (monotonic, row, kind, detail)


def event(row, kind, detail='', t=None):
    EVENTS.append((t or now(), row, kind, detail))
    if ARGS.verbose:
        log('event', row, kind, detail)


VISIBLE_KINDS = ('sni-visible', 'pixels', 'line', 'frame')


def first_event(row, kinds, since):
    for t, r, k, d in EVENTS:
        if r == row and k in kinds and t >= since:
            return t, k, d
    return None


# ------------------------------------------------------------------ mocked hardware
BAT = '/devices/LNXSYSTM:00/LNXSYBUS:00/PNP0C0A:00/power_supply/BAT0'
AC = '/devices/LNXSYSTM:00/LNXSYBUS:00/ACPI0003:00/power_supply/AC'


class Mock:
    def __init__(self):
        self.tb = UMockdev.Testbed.new()
        self.tb.add_from_file(os.path.join(BASE, 'mock', 'battery.umockdev'))
        self.root = self.tb.get_root_dir()
        os.unsetenv('UMOCKDEV_DIR')          # this process sees the mock only inside notify()
        self.charging = False

    def put(self, dev, attr, value):
        """In place, so that the inode stays (inotify watches survive, as in sysfs)."""
        fd = os.open(self.root + '/sys' + dev + '/' + attr, os.O_WRONLY)
        data = value.encode()
        os.write(fd, data)
        os.ftruncate(fd, len(data))
        os.close(fd)

    def props(self, dev, changes):
        p = self.root + '/sys' + dev + '/uevent'
        lines = open(p).read().splitlines()
        out = []
        for ln in lines:
            k = ln.partition('=')[0]
            out.append('%s=%s' % (k, changes[k]) if k in changes else ln)
        self.put(dev, 'uevent', '\n'.join(out) + '\n')

    def write(self, **bat):
        for k, v in bat.items():
            self.put(BAT, k, '%s\n' % v)
        self.props(BAT, {'POWER_SUPPLY_' + k.upper(): v for k, v in bat.items()})

    def notify(self, *devs):
        for d in devs:
            os.putenv('UMOCKDEV_DIR', self.root)
            self.tb.uevent('/sys' + d, 'change')
            os.unsetenv('UMOCKDEV_DIR')
            open(self.root + '/sys' + d + '/uevent').read()     # udevd does this too

    def set_charging(self, on):
        self.charging = on
        self.put(AC, 'online', '%d\n' % on)
        self.props(AC, {'POWER_SUPPLY_ONLINE': int(on)})
        self.write(status='Charging' if on else 'Discharging', current_now=2210000 if on else 1043000,
                   voltage_now=12304000 if on else 11812000)
        self.notify(AC, BAT)

    def drift(self, i):
        """One ordinary change while discharging: a little less charge, another current."""
        q = 2894000 - 4520 * (i + 1) * 3
        self.write(charge_now=q, capacity=round(100 * q / 4520000), current_now=1043000 + 7000 * (i % 5),
                   voltage_now=11812000 - 1000 * i)
        self.notify(BAT)

    def reset(self):
        self.put(AC, 'online', '0\n')
        self.props(AC, {'POWER_SUPPLY_ONLINE': 0})
        self.charging = False
        self.write(status='Discharging', charge_now=2894000, capacity=64, current_now=1043000, voltage_now=11812000)


# ------------------------------------------------------------------ D-Bus: private buses, SNI watcher/host, notifications
WATCHER_XML = '''<node><interface name="org.kde.StatusNotifierWatcher">
<method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
<method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
<property name="RegisteredStatusNotifierItems" type="as" access="read"/>
<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
<property name="ProtocolVersion" type="i" access="read"/>
<signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
<signal name="StatusNotifierItemUnregistered"><arg type="s"/></signal>
<signal name="StatusNotifierHostRegistered"/></interface></node>'''
NOTIFY_XML = '''<node><interface name="org.freedesktop.Notifications">
<method name="Notify"><arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
<arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
<arg type="a{sv}" direction="in"/><arg type="i" direction="in"/><arg type="u" direction="out"/></method>
<method name="CloseNotification"><arg type="u" direction="in"/></method>
<method name="GetCapabilities"><arg type="as" direction="out"/></method>
<method name="GetServerInformation"><arg type="s" direction="out"/><arg type="s" direction="out"/>
<arg type="s" direction="out"/><arg type="s" direction="out"/></method>
<signal name="NotificationClosed"><arg type="u"/><arg type="u"/></signal>
<signal name="ActionInvoked"><arg type="u"/><arg type="s"/></signal></interface></node>'''


class SniHost:
    """Watcher + host + notification server on one row's private session bus."""

    def __init__(self, row, address):
        self.row, self.items, self.hashes, self.nid = row, {}, {}, 0
        self.c = Gio.DBusConnection.new_for_address_sync(
            address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION,
            None, None)
        self.c.set_exit_on_close(False)
        for xml, path, m, g in ((WATCHER_XML, '/StatusNotifierWatcher', self.watcher_call, self.watcher_get),
                                (NOTIFY_XML, '/org/freedesktop/Notifications', self.notify_call, None)):
            self.c.register_object(path, Gio.DBusNodeInfo.new_for_xml(xml).interfaces[0], m, g, None)
        for n in ('org.kde.StatusNotifierWatcher', 'org.freedesktop.Notifications',
                  'org.kde.StatusNotifierHost-%d' % os.getpid()):
            self.c.call_sync('org.freedesktop.DBus', '/org/freedesktop/DBus', 'org.freedesktop.DBus', 'RequestName',
                             GLib.Variant('(su)', (n, 4)), None, 0, -1, None)

    def watcher_get(self, c, sender, path, iface, prop):
        return {'RegisteredStatusNotifierItems': GLib.Variant('as', list(self.items)),
                'IsStatusNotifierHostRegistered': GLib.Variant('b', True),
                'ProtocolVersion': GLib.Variant('i', 0)}[prop]

    def watcher_call(self, c, sender, path, iface, method, args, inv):
        if method == 'RegisterStatusNotifierItem':
            s = args.unpack()[0]
            bus, p = (sender, s) if s.startswith('/') else (s, '/StatusNotifierItem')
            event(self.row, 'sni-register', s)
            self.items[bus + p] = (bus, p)
            c.signal_subscribe(sender, None, None, p, None, 0, self.signal, (bus, p))
            self.fetch(bus, p)
            c.emit_signal(None, '/StatusNotifierWatcher', 'org.kde.StatusNotifierWatcher',
                          'StatusNotifierItemRegistered', GLib.Variant('(s)', (bus + p,)))
        inv.return_value(None)

    def signal(self, c, sender, path, iface, sig, args, item):
        if iface == 'com.canonical.dbusmenu':
            return
        event(self.row, 'sni-signal', sig)
        self.fetch(*item)

    def fetch(self, bus, p):
        def done(c, res):
            try:
                v = c.call_finish(res)
            except GLib.Error:
                return
            h = hashlib.md5(v.print_(False).encode()).hexdigest()
            if self.hashes.get((bus, p)) != h:
                self.hashes[(bus, p)] = h
                d = v.unpack()[0]
                event(self.row, 'sni-visible', '%s|%s|%s' % (d.get('Title'), d.get('IconName'), d.get('ToolTip', ('', '', '', ''))[2:]))
        self.c.call(bus, p, 'org.freedesktop.DBus.Properties', 'GetAll', GLib.Variant('(s)', ('org.kde.StatusNotifierItem',)),
                    None, 0, 5000, None, done)

    def notify_call(self, c, sender, path, iface, method, args, inv):
        if method == 'Notify':
            self.nid += 1
            a = args.unpack()
            event(self.row, 'notification', '%s: %s' % (a[3], a[4]))
            inv.return_value(GLib.Variant('(u)', (self.nid,)))
        elif method == 'GetCapabilities':
            inv.return_value(GLib.Variant('(as)', (['body', 'actions', 'icon-static'],)))
        elif method == 'GetServerInformation':
            inv.return_value(GLib.Variant('(ssss)', ('peers-host', 'peers', '1', '1.2')))
        else:
            inv.return_value(None)


LOGIN1_XML = '''<node><interface name="org.freedesktop.login1.Manager">
%s<method name="Inhibit"><arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="s" direction="in"/>
<arg type="s" direction="in"/><arg type="h" direction="out"/></method>
<method name="ListSessions"><arg type="a(susso)" direction="out"/></method>
<property name="OnExternalPower" type="b" access="read"/><property name="LidClosed" type="b" access="read"/>
<property name="Docked" type="b" access="read"/><property name="IdleHint" type="b" access="read"/>
<property name="PreparingForSleep" type="b" access="read"/><property name="PreparingForShutdown" type="b" access="read"/>
<signal name="PrepareForSleep"><arg type="b"/></signal></interface></node>''' % ''.join(
    '<method name="Can%s"><arg type="s" direction="out"/></method>' % m
    for m in ('PowerOff', 'Reboot', 'Halt', 'Suspend', 'Hibernate', 'HybridSleep', 'SuspendThenHibernate'))


class Login1:
    """The little of logind that desktop power managers insist on, on one row's private system bus."""

    def __init__(self, address):
        self.c = Gio.DBusConnection.new_for_address_sync(
            address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION,
            None, None)
        self.c.set_exit_on_close(False)
        self.c.register_object('/org/freedesktop/login1', Gio.DBusNodeInfo.new_for_xml(LOGIN1_XML).interfaces[0],
                               self.call, lambda *a: GLib.Variant('b', False), None)
        self.c.call_sync('org.freedesktop.DBus', '/org/freedesktop/DBus', 'org.freedesktop.DBus', 'RequestName',
                         GLib.Variant('(su)', ('org.freedesktop.login1', 4)), None, 0, -1, None)

    def call(self, c, sender, path, iface, method, args, inv):
        if method == 'Inhibit':
            r, w = os.pipe()
            l = Gio.UnixFDList.new()
            i = l.append(w)
            os.close(w)
            os.close(r)
            inv.return_value_with_unix_fd_list(GLib.Variant('(h)', (i,)), l)
        elif method == 'ListSessions':
            inv.return_value(GLib.Variant('(a(susso))', ([],)))
        else:
            inv.return_value(GLib.Variant('(s)', ('yes',)))


# ------------------------------------------------------------------ X: XEmbed tray host, window watcher
class XHost:
    ICON = 24

    def __init__(self, name):
        self.d = d = Xlib.display.Display(name)
        d.set_error_handler(lambda *a: None)
        self.root = d.screen().root
        self.a = d.intern_atom
        self.wins, self.slot, self.base = {}, 0, d.get_display_name()
        d.damage_query_version()
        d.composite_query_version()
        self.root.composite_redirect_subwindows(xcomposite.RedirectAutomatic)   # overlapped windows keep their pixels
        self.root.change_attributes(event_mask=X.SubstructureNotifyMask)
        self.mgr = self.root.create_window(-10, -10, 1, 1, 0, X.CopyFromParent)
        sel = self.a('_NET_SYSTEM_TRAY_S0')
        self.mgr.change_property(self.a('_NET_SYSTEM_TRAY_ORIENTATION'), Xatom.CARDINAL, 32, [0])
        self.mgr.change_property(self.a('_NET_SYSTEM_TRAY_VISUAL'), Xatom.VISUALID, 32, [d.screen().root_visual])
        self.mgr.set_selection_owner(sel, X.CurrentTime)
        self.root.send_event(xevent.ClientMessage(window=self.root, client_type=self.a('MANAGER'),
                             data=(32, [X.CurrentTime, sel, self.mgr.id, 0, 0])), X.StructureNotifyMask)
        d.sync()
        self.own = self.mgr.id & ~d.display.info.resource_id_mask
        GLib.io_add_watch(d.fileno(), GLib.IO_IN, self.readable)
        GLib.timeout_add(500, self.readable)

    def row_of(self, win):
        try:
            r = self.d.res_query_client_ids([{'client': win, 'mask': xres.LocalClientPIDMask}])
            pid = r.ids[0].value[0]
            pid = pid if isinstance(pid, int) else pid['value'] if isinstance(pid, dict) else int(pid)
        except Exception as e:
            if ARGS.verbose:
                log('XRes', e)
            return None
        s = stat_of(pid)
        t = tag_of(pid, s['start']) if s else None
        return t

    def pixels(self, win):
        try:
            w = self.d.create_resource_object('window', win)
            g = w.get_geometry()
            im = w.get_image(0, 0, g.width, g.height, X.ZPixmap, 0xffffffff)
            return hashlib.md5(im.data if isinstance(im.data, bytes) else im.data.encode('latin1')).hexdigest(), len(set(im.data[i:i + 4] for i in range(0, len(im.data), 4)))
        except Exception:
            return None

    def track(self, win, row):
        if win in self.wins:
            return
        w = self.d.create_resource_object('window', win)
        self.wins[win] = dict(row=row, hash=None, dmg=w.damage_create(xdamage.DamageReportNonEmpty))
        self.look(win)

    def look(self, win):
        w = self.wins[win]
        self.d.damage_subtract if False else None
        xdamage.DamageSubtract(display=self.d.display, opcode=self.d.display.get_extension_major(xdamage.extname),
                               damage=w['dmg'], repair=0, parts=0)
        p = self.pixels(win)
        if p and p[0] != w['hash']:
            w['hash'] = p[0]
            if p[1] > 1:                 # not one flat colour
                event(w['row'], 'pixels', '0x%x %d colours' % (win, p[1]))

    def readable(self, *a):
        d = self.d
        try:
            while d.pending_events():
                self.handle(d.next_event())
            d.flush()
            while d.pending_events():
                self.handle(d.next_event())
        except Xlib.error.ConnectionClosedError:
            return False
        return True

    def handle(self, e):
        if e.type == X.ClientMessage and e.client_type == self.a('_NET_SYSTEM_TRAY_OPCODE'):
            if e.data[1][1] == 0:
                self.dock(e.data[1][2])
        elif e.type == X.MapNotify and e.event == self.root and not e.override | 0 and (e.window.id & ~self.d.display.info.resource_id_mask) != self.own:
            self.toplevel(e.window.id)
        elif e.type == X.MapNotify and e.event == self.root and (e.window.id & ~self.d.display.info.resource_id_mask) != self.own:
            self.toplevel(e.window.id)
        elif e.type == X.DestroyNotify:
            self.wins.pop(e.window.id, None)
        elif e.__class__.__name__ == 'DamageNotify':
            wid = e.drawable if isinstance(e.drawable, int) else e.drawable.id
            if wid in self.wins:
                self.look(wid)

    def toplevel(self, win):
        t = self.row_of(win)
        if t and not t.startswith('svc:'):
            event(t, 'map', '0x%x' % win)
            self.track(win, t)

    def dock(self, win):
        t = now()
        row = self.row_of(win)
        event(row, 'dock', '0x%x' % win, t)
        d, n = self.d, self.ICON
        x, y = 4 + (self.slot % 40) * (n + 4), self.root.get_geometry().height - n - 4
        self.slot += 1
        c = self.root.create_window(x, y, n, n, 0, X.CopyFromParent, background_pixel=d.screen().white_pixel,
                                    override_redirect=1, event_mask=X.SubstructureNotifyMask)
        c.map()
        w = d.create_resource_object('window', win)
        w.change_attributes(event_mask=X.StructureNotifyMask)
        w.reparent(c, 0, 0)
        w.configure(width=n, height=n)
        w.map()
        w.send_event(xevent.ClientMessage(window=w, client_type=self.a('_XEMBED'),
                     data=(32, [X.CurrentTime, 0, 0, c.id, 0])), 0)
        d.sync()
        self.track(win, row)


# ------------------------------------------------------------------ rows
class Row:
    def __init__(self, spec):
        name, _, cmd = spec.partition('=')
        self.name, _, kind = name.strip().partition(':')
        k = kind.split(',') if kind else ['tray']
        self.kind, self.flags = (k[0] or 'tray'), set(k[1:])
        self.dir = os.path.join(RUN, self.name)
        self.home = self.dir + '/home'
        cmd = cmd.strip().replace('@BASE@', BASE).replace('@BUILD@', os.environ.get('PEERS_BUILD', BASE)).replace('@HOME@', self.home)
        words = shlex.split(cmd)
        self.extra = {}
        while words and re.match(r'^[A-Za-z_]\w*=', words[0]):
            k, _, v = words.pop(0).partition('=')
            self.extra[k] = v
        self.argv = words
        self.res, self.proc, self.host = {}, None, None
        os.makedirs(self.dir + '/rt', mode=0o700)
        tpl = os.path.join(BASE, 'conf', self.name)
        if os.path.isdir(tpl):
            shutil.copytree(tpl, self.home)
        else:
            os.makedirs(self.home)
        self.mock = Mock()
        self.last_line = None

    def base_env(self, tag):
        return {'PATH': '/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin', 'LANG': 'C.UTF-8',
                'HOME': self.home, 'USER': 'root', 'XDG_RUNTIME_DIR': self.dir + '/rt', 'DISPLAY': DISP,
                'DBUS_SESSION_BUS_ADDRESS': 'unix:path=%s/session' % self.dir,
                'DBUS_SYSTEM_BUS_ADDRESS': 'unix:path=%s/system' % self.dir,
                'TMPDIR': RUN + '/tmp', 'TEMP': RUN + '/tmp', 'TMP': RUN + '/tmp', 'PEER_ROW': tag}

    def mock_env(self):
        return {'LD_PRELOAD': 'libumockdev-preload.so.0', 'UMOCKDEV_DIR': self.mock.root}

    def start_buses(self):
        env = self.base_env('svc:' + self.name)
        os.makedirs(self.dir + '/svc')
        os.makedirs(self.dir + '/upower')
        # upowerd is started by the private system bus on first use; its history goes to a private directory
        with open(self.dir + '/upowerd.sh', 'w') as f:
            f.write('#!/bin/sh\nmount --bind %s/upower /var/lib/upower || exit 1\n'
                    'exec env LD_PRELOAD=libumockdev-preload.so.0 UMOCKDEV_DIR=%s /usr/libexec/upowerd\n'
                    % (self.dir, self.mock.root))
        os.chmod(self.dir + '/upowerd.sh', 0o755)
        with open(self.dir + '/svc/org.freedesktop.UPower.service', 'w') as f:
            f.write('[D-BUS Service]\nName=org.freedesktop.UPower\nExec=/usr/bin/unshare -m %s/upowerd.sh\n' % self.dir)
        with open(self.dir + '/system.conf', 'w') as f:
            f.write('''<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>session</type><listen>unix:path=%s/system</listen><servicedir>%s/svc</servicedir>
<auth>EXTERNAL</auth><policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/>
<allow own="*"/></policy></busconfig>''' % (self.dir, self.dir))
        err = open(self.dir + '/svc.log', 'w')
        popen(['dbus-daemon', '--nofork', '--nopidfile', '--config-file=%s/system.conf' % self.dir],
              env=env, stdout=err, stderr=err)
        popen(['dbus-daemon', '--nofork', '--nopidfile', '--session', '--address=unix:path=%s/session' % self.dir],
              env=env, stdout=err, stderr=err)
        for n in ('session', 'system'):
            for _ in range(200):
                if os.path.exists(self.dir + '/' + n):
                    break
                time.sleep(0.02)
        self.host = SniHost(self.name, 'unix:path=%s/session' % self.dir)
        self.login1 = Login1('unix:path=%s/system' % self.dir)

    def start(self):
        env = self.base_env(self.name)
        env.update(self.mock_env())
        if self.kind == 'wl':
            env.update(WAYLAND_DISPLAY=SWAY.sock)
            env.pop('DISPLAY')
        env.update(self.extra)
        self.last_line = None
        err = open(self.dir + '/stderr.log', 'a')
        t0 = now()
        self.proc = popen(self.argv, env=env, stderr=err, cwd=self.home,
                          stdout=subprocess.PIPE if self.kind == 'term' else err)
        self.t0 = t0
        if self.kind == 'term':
            GLib.io_add_watch(self.proc.stdout.fileno(), GLib.IO_IN | GLib.IO_HUP, self.line)
        return t0

    def line(self, fd, cond):
        data = os.read(fd, 65536)
        if not data:
            return False
        ln = data.decode(errors='replace').strip().splitlines()
        if ln and ln[-1] != self.last_line:
            self.last_line = ln[-1]
            event(self.name, 'line', ln[-1])
        return True

    def pids(self, svc=False):
        return tagged()[('svc:' if svc else '') + self.name]

    def stop(self):
        terminate([(p, s['start']) for p, s in self.pids().items()])
        self.proc = None


class Sway:
    """Headless sway for wl rows, and a grim poller that logs changed frames while it is switched on."""

    def __init__(self):
        self.dir = RUN + '/sway'
        os.makedirs(self.dir, mode=0o700)
        os.chmod(RUN, 0o711)                 # sway refuses to run as root: it runs as nobody
        os.chown(self.dir, 65534, 65534)
        with open(self.dir + '/config', 'w') as f:
            f.write('output * resolution 1280x720\nxwayland disable\n')
        env = dict(PATH=os.environ['PATH'], HOME=self.dir, XDG_RUNTIME_DIR=self.dir, WLR_BACKENDS='headless',
                   WLR_RENDERER='pixman', WLR_LIBINPUT_NO_DEVICES='1', LANG='C.UTF-8', PEER_ROW='svc:sway')
        err = open(self.dir + '/log', 'w')
        self.proc = popen((['setpriv', '--reuid=65534', '--regid=65534', '--clear-groups'] if os.getuid() == 0 else []) +
                          ['sway', '-c', self.dir + '/config'], env=env, stdout=err, stderr=err)
        self.env = env
        ok = spin(8, lambda: bool(self.socks()))
        self.ok = ok
        self.sock = self.dir + '/' + self.socks()[0] if ok else ''
        self.on, self.row, self.last = False, None, None
        spin(0.5)
        threading.Thread(target=self.poll, daemon=True).start()

    def socks(self):
        return [s for s in os.listdir(self.dir) if re.match(r'^wayland-\d+$', s)]

    def shot(self):
        p = subprocess.run(['grim', '-t', 'ppm', '-g', '0,0 1280x34', '-'], env=dict(self.env, WAYLAND_DISPLAY=self.sock),
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        return hashlib.md5(p.stdout).hexdigest() if p.returncode == 0 else None

    def poll(self):
        while True:
            if not self.on:
                time.sleep(0.05)
                continue
            t, h = now(), self.shot()
            if h and h != self.last:
                if self.last and self.on:
                    event(self.row, 'frame', h[:8], now())
                self.last = h
            time.sleep(max(0.0, 0.025 - (now() - t)))

    def watch(self, row):
        self.last = self.shot()
        self.row, self.on = row, True

    def unwatch(self):
        self.on = False
        time.sleep(0.1)


# ------------------------------------------------------------------ strace
SYS_RE = re.compile(r'^(\d+) +(\d+\.\d+) (\w+)\(')
PS_RE = re.compile(r'"(?:[^"]*power_supply/[^"]*/|(?:BAT0|AC)/)(uevent|status|capacity|charge_now|energy_now|online|current_now|present)"')


# what libumockdev-preload adds by itself: access() of its "disabled" flag, and signal masking around its locks
PRELOAD_RE = re.compile(r' rt_sigprocmask\(| access\("[^"]*/umockdev\.[^"/]*/disabled"')


def strace_parse(path, a, b):
    n, reads, last, bursts, prev, size = 0, 0, 0.0, 0, 0.0, 0
    names = collections.Counter()
    try:
        f = open(path, errors='replace')
    except OSError:
        return dict(calls=0, clusters=0, bursts=0, top='')
    for line in f:
        m = SYS_RE.match(line)
        if not m:
            continue
        t = float(m.group(2))
        if not a <= t < b or not ARGS.raw_strace and PRELOAD_RE.search(line):
            continue
        n += 1
        names[m.group(3)] += 1
        if t - prev > 0.4:
            bursts, size = bursts + (size >= 8), 0
        size, prev = size + 1, t
        if m.group(3) in ('open', 'openat', 'openat2') and PS_RE.search(line):
            if t - last > 0.4:
                reads += 1
            last = t
    return dict(calls=n, clusters=reads, bursts=bursts + (size >= 8), top=' '.join('%s:%d' % x for x in names.most_common(6)))


# ------------------------------------------------------------------ the run
def med(v):
    return statistics.median(v) if v else None


def main():
    global ARGS, RUN, DISP, SWAY
    ap = argparse.ArgumentParser(description=__doc__)
    ap.add_argument('rows', nargs='*', metavar='NAME[:KIND[,FLAG]]=COMMAND', help='further rows')
    ap.add_argument('--peers', default=os.path.join(BASE, 'peers.conf'), help="file of rows, or 'none'")
    ap.add_argument('--only', help='comma list of row names')
    ap.add_argument('--skip', help='comma list of row names')
    ap.add_argument('--ratio', metavar='NAME[,NAME]', help='also print NAME against the best peer, per figure')
    ap.add_argument('--window', type=float, default=120, help='idle window, s')
    ap.add_argument('--settle', type=float, default=10, help='settling time, s')
    ap.add_argument('--starts', type=int, default=4, help='timed starts per row (the first warms the page cache)')
    ap.add_argument('--reps', type=int, default=4, help='plug/unplug repetitions')
    ap.add_argument('--react', type=float, default=35, help='longest wait for the visible change, s')
    ap.add_argument('--strace', type=float, default=60, help='length of each of the two strace windows, s (0: none)')
    ap.add_argument('--drifts', type=int, default=6, help='mocked changes in the second strace window')
    ap.add_argument('--display', type=int, default=90)
    ap.add_argument('--xserver', choices=('Xvfb', 'dummy'), default='Xvfb')
    ap.add_argument('--quiet', type=float, default=15,
                    help='wait up to so many s for a moment without foreign sharers before the memory sample')
    ap.add_argument('--raw-strace', action='store_true', help="count the preload's own system calls too")
    ap.add_argument('--json')
    ap.add_argument('--out', help='write the tables to this file too')
    ap.add_argument('--keep', action='store_true', help='keep the run directory (logs)')
    ap.add_argument('--verbose', action='store_true')
    ARGS = ap.parse_args()

    ctypes.CDLL(None).prctl(36, 1, 0, 0, 0)          # PR_SET_CHILD_SUBREAPER: daemonised rows stay ours
    RUN = tempfile.mkdtemp(prefix='quindle-peers-')
    os.makedirs(RUN + '/tmp')
    os.environ['TMPDIR'] = RUN + '/tmp'
    DISP = ':%d' % ARGS.display
    signal.signal(signal.SIGTERM, lambda *a: sys.exit(143))
    try:
        return run()
    finally:
        log('cleaning up')
        try:
            terminate([(p, s['start']) for p, s in descendants().items()])
            terminate([(p, s['start']) for p, s in descendants().items()])
        finally:
            left = {p: s for p, s in descendants().items() if not dead(p, s['start'])}
            if left:
                log('still there:', left)
            if ARGS.keep:
                log('kept', RUN)
            else:
                shutil.rmtree(RUN, ignore_errors=True)


def run():
    global SWAY
    specs = []
    if ARGS.peers != 'none':
        specs += [ln.strip() for ln in open(ARGS.peers) if ln.strip() and not ln.startswith('#')]
    specs += ARGS.rows
    rows = []
    for s in specs:
        n = s.partition('=')[0].partition(':')[0].strip()
        if ARGS.only and n not in ARGS.only.split(',') or ARGS.skip and n in ARGS.skip.split(','):
            continue
        r = Row(s)
        if not (shutil.which(r.argv[0])):
            log('skip', n, ': no such program', r.argv[0])
            continue
        rows.append(r)
    if not rows:
        sys.exit('no rows')

    log(ARGS.xserver, DISP)
    xlog = open(RUN + '/xvfb.log', 'w')
    if ARGS.xserver == 'dummy':
        x = ['/usr/lib/xorg/Xorg', DISP, '-config', BASE + '/conf/x/xorg.conf', '-novtswitch', '-logfile', RUN + '/xorg.log',
             '-nolisten', 'tcp', '-noreset']
    else:
        x = ['Xvfb', DISP, '-screen', '0', '1600x900x24', '-nolisten', 'tcp', '-noreset']
    popen(x,
          env=dict(PATH=os.environ['PATH'], PEER_ROW='svc:xvfb'), stdout=xlog, stderr=xlog)
    xh = None
    for _ in range(100):
        try:
            xh = XHost(DISP)
            break
        except Exception as e:
            err = e
            time.sleep(0.1)
    if not xh:
        sys.exit('no X server: %s' % err)
    SWAY = None
    if any(r.kind == 'wl' for r in rows):
        SWAY = Sway()
        if not SWAY.ok:
            log('sway did not start; skipping wl rows:', open(SWAY.dir + '/log').read()[-400:])
            rows = [r for r in rows if r.kind != 'wl']
    for r in rows:
        r.start_buses()
    info = dict(date=time.strftime('%Y-%m-%d %H:%M:%S'), window=ARGS.window, settle=ARGS.settle,
                load_before=os.getloadavg(), cpus=os.cpu_count())

    # -- phase A: each row alone: start-up times, memory
    for r in rows:
        times, reg = [], []
        for i in range(ARGS.starts):
            if r.kind == 'wl':
                SWAY.watch(r.name)
            t0 = r.start()
            ok = spin(12, lambda: first_event(r.name, VISIBLE_KINDS, t0) or r.proc.poll() is not None and not r.pids())
            if r.kind == 'wl':
                SWAY.unwatch()
            e = first_event(r.name, VISIBLE_KINDS, t0)
            g = first_event(r.name, ('sni-register', 'dock', 'map') + VISIBLE_KINDS, t0)
            if e:
                times.append((e[0] - t0) * 1000)
                reg.append((g[0] - t0) * 1000)
                r.res['seen_by'] = '%s/%s' % (g[1], e[1]) if g[1] != e[1] else e[1]
            if i < ARGS.starts - 1:
                spin(1.0)
                r.stop()
                spin(0.3)
            else:
                spin(max(0.1, t0 + ARGS.settle - now()))
                quiet = now() + ARGS.quiet
                while now() < quiet and foreign_sharers():      # others' toolkit processes would flatter PSS and USS
                    spin(0.5)
                r.res.update({k: v for k, v in memory(r.pids()).items()})
                s = r.pids(svc=True)
                r.res['svc'] = ' '.join(sorted(v['comm'] for v in s.values() if v['comm'] != 'dbus-daemon'))
                r.res['svc_pss'] = memory([p for p, v in s.items() if v['comm'] != 'dbus-daemon'])['pss']
                r.res['alive'] = bool(r.pids())
                r.res['foreign'] = foreign_sharers()
                r.stop()
        warm, wreg = (times[1:] or times), (reg[1:] or reg)
        r.res.update(start_first=times[0] if times else None, start_ms=med(warm), register_ms=med(wreg), starts=times)
        log('%-22s visible %s ms %s  pss %d kB alive=%s' % (r.name, [round(x) for x in times], r.res.get('seen_by'),
                                                          r.res['pss'], r.res['alive']))
        r.mock.reset()
    for r in rows:
        if not r.res['alive']:
            log('dropping', r.name, '(not running after settling):', open(r.dir + '/stderr.log').read()[-600:])
    rows = [r for r in rows if r.res['alive']]

    # -- phase B: all at the same time: idle window
    for r in rows:
        r.start()
        spin(0.5)
    spin(ARGS.settle)
    tg = tagged()
    a = {r.name: cpu_sample(tg[r.name]) for r in rows}
    asvc = {r.name: cpu_sample(tg['svc:' + r.name]) for r in rows}
    tot_a, t_a = open('/proc/stat').readline().split(), now()
    log('idle window %.0f s, load %s' % (ARGS.window, os.getloadavg()))
    spin(ARGS.window)
    tg = tagged()
    win = now() - t_a
    tot_b = open('/proc/stat').readline().split()
    for r in rows:
        b = cpu_sample(tg[r.name])
        r.res.update(cpu_delta(a[r.name], b))
        d = cpu_delta(asvc[r.name], cpu_sample(tg['svc:' + r.name]))
        r.res.update(svc_cpu_ms=d['cpu_ms'], svc_ctxt=d['ctxt'])
        r.res['end'] = memory(tg[r.name])
    busy = sum(int(tot_b[i]) - int(tot_a[i]) for i in (1, 2, 3, 6, 7)) * 10.0
    info.update(window_real=win, busy_ms=busy, load_after=os.getloadavg())

    # -- phase C: plug and unplug
    lat = {r.name: dict(on=[], off=[], kind=None, note=[], miss=0) for r in rows}
    wl = next((r for r in rows if r.kind == 'wl'), None)
    if wl and ARGS.reps:
        SWAY.watch(wl.name)
    rnd = random.Random(7)
    for i in range(ARGS.reps * 2):
        on = i % 2 == 0
        spin(rnd.uniform(2.0, 7.0))
        t0s = {}
        for r in rows:
            t0s[r.name] = now()
            r.mock.set_charging(on)
            if 'floor' not in r.flags:         # one at a time: event-driven rows must not fight for the CPUs
                spin(0.5, lambda: first_event(r.name, VISIBLE_KINDS, t0s[r.name]))
                spin(0.1)
        want = [r for r in rows if lat[r.name]['miss'] < 2 and 'floor' not in r.flags]
        spin(ARGS.react, lambda: all(first_event(r.name, VISIBLE_KINDS, t0s[r.name]) for r in want))
        for r in rows:
            e = first_event(r.name, VISIBLE_KINDS, t0s[r.name])
            L = lat[r.name]
            if e:
                L['on' if on else 'off'].append((e[0] - t0s[r.name]) * 1000)
                L['kind'] = e[1]
            else:
                L['miss'] += 1
            n = first_event(r.name, ('notification',), t0s[r.name])
            if n and on:
                L['note'].append((n[0] - t0s[r.name]) * 1000)
    if wl and ARGS.reps:
        SWAY.unwatch()
    for r in rows:
        L = lat[r.name]
        r.res.update(lat_on=med(L['on']), lat_on_max=max(L['on'], default=None), lat_off=med(L['off']),
                     lat_kind=L['kind'], lat_all=L, lat_n=len(L['on']), note_ms=med(L['note']))
    log('plug/unplug done')

    # -- phase D: strace: idle window, then a window with mocked changes
    if ARGS.strace:
        spin(2)
        tg = tagged()
        tr = []
        for r in rows:
            pids = list(tg[r.name])
            cmd = ['strace', '-f', '-ttt', '-qq', '-s', '200', '-o', r.dir + '/strace']
            for p in pids:
                cmd += ['-p', str(p)]
            tr.append(popen(cmd, env=dict(PATH=os.environ['PATH']), stdout=subprocess.DEVNULL, stderr=open(r.dir + '/strace.err', 'w')))
        spin(4)
        w0 = time.time()
        spin(ARGS.strace)
        w1 = time.time()
        for i in range(ARGS.drifts):
            for r in rows:
                r.mock.drift(i)
            spin(ARGS.strace / ARGS.drifts)
        w2 = time.time()
        for p in tr:
            p.send_signal(signal.SIGINT)
        spin(3, lambda: all(p.poll() is not None for p in tr))
        for r in rows:
            idle = strace_parse(r.dir + '/strace', w0, w1)
            act = strace_parse(r.dir + '/strace', w1, w2)
            r.res['sys_idle_min'] = idle['calls'] * 60 / (w1 - w0)
            r.res['rereads_min'] = idle['clusters'] * 60 / (w1 - w0)
            r.res['sys_event'] = max(0, (act['calls'] - idle['calls'] * (w2 - w1) / (w1 - w0)) / max(1, ARGS.drifts))
            r.res['event_rereads'] = act['clusters']
            r.res['bursts_min'] = idle['bursts'] * 60 / (w1 - w0)
            if idle['clusters'] >= 2 or idle['bursts'] >= (w1 - w0) / 15:
                k = idle['clusters'] if idle['clusters'] >= 2 else idle['bursts']
                r.res['sys_refresh'] = idle['calls'] / k
                r.res['refresh_by'] = 'poll, %.1f s' % ((w1 - w0) / k)
                r.res['sys_event'] = None
            else:
                r.res['sys_refresh'], r.res['refresh_by'] = r.res['sys_event'], 'event'
            r.res['strace_top_idle'], r.res['strace_top_active'] = idle['top'], act['top']
        log('strace done')

    text = report(rows, info)
    print(text)
    if ARGS.out:
        open(ARGS.out, 'w').write(text)
    if ARGS.json:
        json.dump(dict(info=info, rows={r.name: dict(r.res, kind=r.kind, flags=sorted(r.flags)) for r in rows},
                       events=[e for e in EVENTS if e[2] == 'notification']), open(ARGS.json, 'w'), indent=1, default=str)
    return 0


FIGURES = [  # key, heading, format, what
    ('pss', 'PSS kB', '%.0f'), ('uss', 'USS kB', '%.0f'), ('rss', 'RSS kB', '%.0f'), ('anon', 'Anon kB', '%.0f'),
    ('threads', 'thr', '%d'), ('cpu_ms', 'CPU ms', '%.1f'), ('ticks', 'ticks', '%d'), ('ctxt', 'ctx sw', '%d'),
    ('register_ms', 'reg ms', '%.0f'), ('start_ms', 'visible ms', '%.0f'), ('sys_idle_min', 'sysc/min idle', '%.0f'),
    ('sys_refresh', 'sysc/refresh', '%.0f'), ('sys_event', 'sysc/event', '%.0f'),
    ('lat_on', 'plug ms', '%.0f'), ('lat_on_max', 'plug max', '%.0f'), ('lat_off', 'unplug ms', '%.0f'),
]
RATIO = ('pss', 'uss', 'rss', 'anon', 'threads', 'cpu_ms', 'ctxt', 'register_ms', 'start_ms', 'sys_idle_min', 'sys_refresh',
         'sys_event', 'lat_on', 'lat_on_max', 'lat_off')


def table(head, lines):
    w = [max(len(str(x[i])) for x in [head] + lines) for i in range(len(head))]
    f = lambda x: '| ' + ' | '.join(str(c).ljust(w[i]) if i == 0 else str(c).rjust(w[i]) for i, c in enumerate(x)) + ' |'
    return '\n'.join([f(head), '|' + '|'.join('-' * (n + 2) for n in w) + '|'] + [f(x) for x in lines])


def report(rows, info):
    g = lambda r, k, f: '-' if r.res.get(k) is None else f % r.res[k]
    out = ['run of %s: idle window %.0f s (real %.1f), settle %.0f s; load %.2f before, %.2f after; '
           'machine busy %.0f ms of %.0f in the window' %
           (info['date'], info['window'], info['window_real'], info['settle'], info['load_before'][0], info['load_after'][0],
            info['busy_ms'], info['window_real'] * 1000 * info['cpus']), '']
    out.append(table(['row'] + [f[1] for f in FIGURES], [[r.name] + [g(r, k, f) for k, _, f in FIGURES] for r in rows]))
    out += ['', table(['row', 'kind', 'procs', 'child ticks', 'first start', 'seen by', 'change seen by', 'plug n', 'note ms', 'refresh by',
                       'RSS end', 'PSS end', 'Anon end', 'foreign sharers', 'services', 'svc PSS', 'svc CPU ms', 'svc ctx'],
                      [[r.name, r.kind, r.res['procs'], r.res['cticks'], g(r, 'start_first', '%.0f'), r.res.get('seen_by'), r.res.get('lat_kind'),
                        r.res.get('lat_n'), g(r, 'note_ms', '%.0f'), r.res.get('refresh_by', '-'), r.res['end']['rss'], r.res['end']['pss'],
                        r.res['end']['anon'], r.res['foreign'], r.res['svc'] or '-', r.res['svc_pss'], '%.1f' % r.res['svc_cpu_ms'],
                        r.res['svc_ctxt']] for r in rows])]
    for want in (ARGS.ratio or '').split(','):
        me = next((r for r in rows if r.name == want), None)
        if not want:
            continue
        if not me:
            out += ['', 'no row named %s ran: no ratios' % want]
        else:
            others = [r for r in rows if r is not me and not r.flags & {'floor', 'own'}]
            tray = [r for r in others if r.kind == 'tray']
            floor = [r for r in rows if r is not me and 'floor' in r.flags]
            lines = []
            for k, h, f in FIGURES:
                if k not in RATIO:
                    continue
                v = me.res.get(k)

                def against(group):
                    c = [(r.res[k], r.name) for r in group if r.res.get(k) is not None]
                    if v is None or not c:
                        return '-'
                    b, n = min(c)
                    return '%s (%s, %s)' % ('%.2f' % (v / b) if b > 0 else 'inf' if v > 0 else '1.00', f % b, n)
                lines.append([h, '-' if v is None else f % v, against(tray), against(others), against(floor)])
            out += ['', '%s against the best peer, per figure (value / best; below 1 is better than the best peer):' % me.name,
                    '', table(['figure', me.name, 'best tray peer', 'best of all peers', 'floor'], lines)]
    return '\n'.join(out) + '\n'


if __name__ == '__main__':
    sys.exit(main())
