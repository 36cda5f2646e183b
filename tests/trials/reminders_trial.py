"""zyndle reminders as a desktop sees them: a real bus with a service that only takes notes,
another library that reads the calendar file, systemd's own check of the units.

reminders_trial.py ZYNDLE-REMINDERS CLASS, on a session bus of its own."""

import datetime
import os
import pathlib
import shutil
import socket
import sqlite3
import subprocess
import sys
import tempfile
import time
import unittest

import dbus
import dbusmock
import icalendar

PROGRAM = sys.argv.pop(1)
SERVICE = "org.freedesktop.Notifications"


class Trial(dbusmock.DBusTestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix='odd % "name" ')
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.environment = dict(os.environ, TZ="UTC", PATH=folder.name + ":" + os.environ["PATH"])
        for purpose in ["DATA_HOME", "CONFIG_HOME", "RUNTIME_DIR"]:
            self.environment["XDG_" + purpose] = folder.name

    def start(self, *arguments):
        process = subprocess.Popen([PROGRAM, "reminders", *arguments], env=self.environment,
                                   cwd=self.folder, stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE, text=True)
        self.addCleanup(process.communicate)
        self.addCleanup(process.kill)
        return process

    def run_to_end(self, status, *arguments):
        process = self.start(*arguments)
        output, errors = process.communicate()
        self.assertEqual(process.returncode, status, errors)
        return output if status == 0 else errors

    def database(self, query, *values):
        connection = sqlite3.connect(self.folder / "zyndle" / "shared.sqlite", timeout=10)
        with connection:
            rows = connection.execute(query, values).fetchall()
        connection.close()
        return rows

    def schedule(self, *hours_ago):
        """Next month's reminders, the first few of them due some hours ago instead."""
        for category in ["jazz", "beginner", "jazz"]:
            self.run_to_end(0, "schedule", "--month-offset", "1", "--category", category)
        rows = self.database("SELECT identifier FROM notifications "
                             "WHERE identifier LIKE '%_jazz_%' ORDER BY month, day")
        for (name,), hours in zip(rows, hours_ago):
            due = datetime.datetime.utcnow() - datetime.timedelta(hours=hours)
            self.database(
                "UPDATE notifications SET year=?, month=?, day=?, hour=?, minute=?, second=?,"
                " body='<b>&' WHERE identifier=?", *due.timetuple()[:6], name)
        return [name for (name,) in rows]

    def delivered(self):
        return self.database("SELECT count(*) FROM notifications WHERE delivered")[0][0]

    def serve(self, notify=None):
        process, server = self.spawn_server_template(
            "notification_daemon", {"capabilities": "body body-markup actions"},
            stdout=subprocess.DEVNULL)
        self.addCleanup(process.wait)
        self.addCleanup(process.terminate)
        if notify:
            server.AddMethod(SERVICE, "Notify", "susssasa{sv}i", "u", notify)
        return server

    def wait_for(self, condition):
        for _ in range(600):
            if condition():
                return
            time.sleep(0.05)
        self.fail("waited in vain")


class Delivery(Trial):
    def test_first_without_and_then_with_a_service(self):
        names = self.schedule(0, 25, *range(1, 10))
        self.database("UPDATE notifications SET month = 13 WHERE identifier = ?", names[11])
        errors = self.run_to_end(1, "deliver")
        self.assertIn("no notification service", errors)
        self.assertIn("10 reminders kept", errors)
        self.assertIn("Reminder %s dropped: it was missed" % names[1], errors)
        self.assertIn("Reminder %s dropped: its day does not exist" % names[11], errors)
        server = self.serve()
        # All of them at the same moment.
        for process in [self.start("deliver") for _ in range(5)]:
            self.assertEqual((process.communicate()[1], process.returncode), ("", 0))
        calls = [arguments for _, arguments in server.GetMethodCalls("Notify")]
        self.assertEqual((len(calls), self.delivered()), (10, 10))
        for call in calls:
            self.assertRegex(call[4], r"^&lt;b&gt;&amp;\nzyndle://widget/chord\?root=.*&amp;type=")
            self.assertEqual(list(call[5]), [], "nobody would be there to hear the click")

    def test_nobody_answers_in_time(self):
        self.schedule(0)
        self.serve("import time; time.sleep(3); ret = 1")
        self.assertIn("1 reminder kept", self.run_to_end(1, "deliver"))
        with socket.socket(socket.AF_UNIX) as silent:
            silent.bind(str(self.folder / "bus"))
            silent.listen()
            self.environment["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/proc/self/cwd/bus"
            self.assertIn("does not answer", self.run_to_end(1, "deliver"))
        self.assertEqual(self.delivered(), 0)

    def start_posting_slowly(self):
        """The delivery of one reminder, at the moment when the service has it and thinks."""
        self.schedule(0)
        seen = self.folder / "seen"
        server = self.serve("import time; open(%r, 'w').close(); time.sleep(1); ret = 1" % str(seen))
        process = self.start("deliver")
        self.wait_for(seen.exists)
        return process, server

    def test_replaced_while_it_is_posted(self):
        process, _ = self.start_posting_slowly()
        names = self.schedule()
        self.assertEqual((process.communicate()[0], process.returncode), ("1 reminder delivered\n", 0))
        self.assertEqual(self.delivered(), 0, "the new one is still to come")
        self.assertEqual(len(self.run_to_end(0, "list").splitlines()), 2 * len(names))

    def test_killed_between_posting_and_marking(self):
        process, server = self.start_posting_slowly()
        process.kill()
        process.wait()
        self.assertEqual(self.delivered(), 0)
        self.run_to_end(0, "deliver")
        self.assertEqual(len(server.GetMethodCalls("Notify")), 1, "it may still be alive")
        self.database("UPDATE notifications SET claimed = claimed - 60 WHERE claimed > 0")
        self.run_to_end(0, "deliver")
        self.assertEqual(len(server.GetMethodCalls("Notify")), 2)
        self.assertEqual(self.delivered(), 1)

    def test_a_widget_host_delivers_while_it_runs(self):
        self.schedule(0)
        self.serve()
        host = subprocess.Popen(
            [pathlib.Path(PROGRAM).with_name("zyndle"), "host", self.folder / "widgets"],
            env=self.environment)
        self.addCleanup(host.kill)
        self.wait_for(lambda: self.delivered() == 1)
        host.terminate()
        self.assertEqual(host.wait(), 0)

    def test_a_click_while_waiting(self):
        opened = self.folder / "opened"
        opener = self.folder / "xdg-open"
        opener.write_text("#!/bin/sh\necho \"$1\" > '%s.new' && mv '%s.new' '%s'\n" % ((opened,) * 3))
        opener.chmod(0o755)
        server = self.serve()
        self.schedule(0)
        self.start("deliver", "--wait")
        self.wait_for(lambda: self.delivered() == 1)
        [(_, call)] = server.GetMethodCalls("Notify")
        self.assertEqual((call[4], call[5][0]), ("&lt;b&gt;&amp;", "default"))
        click = dbus.Array([dbus.UInt32(1), "default"], signature="v")
        server.EmitSignal(SERVICE, "ActionInvoked", "us", click)
        self.wait_for(opened.exists)
        self.assertRegex(opened.read_text(), "^zyndle://widget/chord\\?root=")


class Export(Trial):
    def read(self):
        self.run_to_end(0, "export", "--month-offset", "1", "--category", "jazz", "-o",
                        str(self.folder / "out.ics"))
        return icalendar.Calendar.from_ical((self.folder / "out.ics").read_bytes())

    def test_is_read_by_another_library(self):
        fresh = self.read()
        names = self.schedule()
        for sequence, calendar in enumerate([fresh, self.read()]):
            self.assertNotIn("METHOD", calendar)
            events = calendar.walk("VEVENT")
            self.assertEqual([str(event["UID"]) for event in events], [n + "@zyndle" for n in names])
            for event in events:
                self.assertEqual((event.errors, event["SEQUENCE"]), ([], sequence))
                start = event["DTSTART"].dt
                self.assertEqual((start.hour, start.tzinfo), (8, None))
                self.assertRegex(event["URL"], "^zyndle://widget/chord\\?root=.*&type=.*&variant=0$")
                [alarm] = event.walk("VALARM")
                self.assertEqual(alarm["TRIGGER"].dt, datetime.timedelta())
        kept = self.database("SELECT body, minute FROM notifications "
                             "WHERE identifier LIKE '%_jazz_%' ORDER BY month, day")
        self.assertEqual([(e["DESCRIPTION"], e["DTSTART"].dt.minute) for e in events], kept)


class Installation(Trial):
    def test_is_taken_by_systemd(self):
        output = self.run_to_end(0, "install")
        timer = self.folder / "systemd" / "user" / "zyndle-reminders.timer"
        check = ["systemd-analyze", "--user", "verify", timer, timer.with_suffix(".service")]
        self.assertEqual(subprocess.run(check, env=self.environment, capture_output=True).stderr, b"")
        self.assertRegex(output, r"\n\* \* \* \* \* DBUS_SESSION_BUS_ADDRESS=.* reminders deliver")
        self.run_to_end(0, "uninstall")
        self.assertFalse(timer.exists() or timer.with_suffix(".service").exists())


if __name__ == "__main__":
    if "Installation" in sys.argv and not shutil.which("systemd-analyze"):
        print("systemd-analyze is missing, so nothing was checked")
        sys.exit(77)
    unittest.main()
