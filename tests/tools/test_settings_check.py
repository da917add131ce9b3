#!/usr/bin/env python3
"""The console program as an administrator runs it, without a display.

test_settings_check.py PROGRAM [unittest's arguments, as SettingsCheck.test_usage]
"""
import configparser
import faulthandler
import fcntl
import json
import os
import pathlib
import pwd
import re
import struct
import subprocess
import sys
import tempfile
import termios
import time
import unittest

PROGRAM = ""
CUT = 'a write was cut short, and has left a file ".unfinished"'
TOO_OLD = "fresh start: its version is too old"
LISTS_IN_LISTS = "\\0\\0\\0\\x9\\0\\0\\0\\x1" * 50000
CACHE = "{root}/cache/TorvaneBoundlessX64/{user}"
LOG = "{root}/config/TorvaneBoundlessX64/log.txt"

# What a file holds, its old text for a key, that key, its new text, the reason, and the damage. Behind "|"
# stands what a killed program has left: a file that was written since, or one that is cut.
REPAIRS = {
    "key that is missing": ("[x]\ny=🙂\n", None, "settingsVersion", "2", "missing"),
    "value that is not known":
        ("engine=Deferred\n", "Deferred", "engine", "deferred", "neither deferred nor"),
    "older version": ("settingsVersion=1\n", "1", "settingsVersion", "2", "not the current"),
    "list": ("settingsVersion=1\nengine=a, b\n", "a, b", "engine", "deferred", "list"),
    "engine of an older version":
        ("settingsVersion=1\nengine=software\n", "software", "engine", "deferred", "older version"),
    "log file that stays":
        ("[Logging]\nlogFile={root}/cache/log.txt\n", None, "engine", "deferred", "missing"),
    "characters that control a terminal":
        ('[General]\nenablediag="a\\"\\n\\x1b[31m\\x2028\\x2029\\x202e\\x61c\\x2066\\xd83d"\n',
         'a"\n\x1b[31m\u2028\u2029\u202e\u061c\u2066\ud83d',
         "enablediag", "false", "true nor", "line 2 cannot be read"),
    "folder that is gone":
        ("[DBCache]\ncacheDirectory=/gone\n", "/gone", "DBCache/cacheDirectory", CACHE, "existing folder"),
    "slashes of another system":
        ("[Logging]\nlogFile=\\\\tmp///\n", "\\tmp///", "Logging/logFile", "/tmp",
         "is not written the usual way"),
    "log file without a name": ("[Logging]\nlogFile=\n", "", "Logging/logFile", LOG, "existing folder"),
    "nothing but slashes": ("[Logging]\nlogFile=//\n", "//", "Logging/logFile", LOG, "existing folder"),
    "object whose decoding would end the process":
        (f'x="@Variant({LISTS_IN_LISTS})"\n', None, "engine", "deferred", "missing",
         "line 1 holds a serialised object"),
    "killed write, and another since":
        ("engine=bad\n|engine=software\n", "bad", "engine", "deferred", "neither", CUT),
    "killed write that cut the file":
        ("engi|engine=bad\nx\n", "bad", "engine", "deferred", "neither", f"{CUT}; line 2 cannot be read"),
}

# What is in the way ($1 is the file, $2 the folder of the cache), and the error.
OBSTACLES = {
    "true": "does not exist",
    'mkfifo "$1"': "it is not a file",  # It never gets a writer.
    'touch "$1" "$2"': "could not be created",
    'touch "$1"; ln -s /gone/there "$2"': "could not be created",
    'mkdir "$1.lock"; touch "$1"': "is in the way",
    'touch "$1" "$1.unfinished" "$1.lock"': "has locked it",
    'truncate -s 70000000 "$1"': "too large",
    'ln -s /no/where/there "$1"': "No such file",
    'touch "$1"; chown 65534 "$1"': "another user",
}


def feed(process, data):
    """Writes the first byte, waits until it is read, and writes the rest."""
    stream = process.stdin
    try:
        for part in data[:1], data[1:]:
            stream.write(part)
            stream.flush()
            waiting = len(part)
            while waiting and process.poll() is None:
                waiting = struct.unpack("i", fcntl.ioctl(stream, termios.FIONREAD, b"1234"))[0]
                time.sleep(0.001)
        stream.close()
    except BrokenPipeError:
        pass


class SettingsCheck(unittest.TestCase):
    def setUp(self):
        faulthandler.dump_traceback_later(120, exit=True)  # Where the program does not end.
        self.begin()

    def begin(self):
        """Starts with an empty folder."""
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        self.file = self.root / "Üser 🙂.ini"
        self.environment = {"XDG_CONFIG_HOME": f"{self.root}/config", "XDG_CACHE_HOME": f"{self.root}/cache"}

    def start(self, *arguments):
        return subprocess.Popen([PROGRAM, *arguments], cwd=self.root,
                                env={**os.environ, "LC_ALL": "C", **self.environment}, stdin=subprocess.PIPE,
                                stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)

    def run_check(self, *arguments, names=b""):
        """Returns the exit code. What the program prints is left in self.output, and the object of the last
        line in self.report."""
        with self.start(*arguments) as process:
            feed(process, names)
            self.output = process.stdout.read().decode()
        self.report = json.loads(self.output.splitlines()[-1]) if self.output.startswith("{") else {}
        return process.returncode

    def everything(self, with_times=True):
        paths = (self.root, *self.root.rglob("*"))
        return {path: path.lstat().st_mtime_ns if with_times else 0 for path in paths}

    def stored(self):
        """The settings file, as a dictionary from keys to texts."""
        parser = configparser.RawConfigParser(delimiters="=")
        parser.optionxform = str
        parser.read(self.file, "utf-8")
        return {(f"{group}/" if group != "General" else "") + key: value.strip('"')
                for group in parser.sections() for key, value in parser[group].items()}

    def change(self, key):
        return next((change for change in self.report["changes"] if change["key"] == key), {"old": None})

    def tells_and_repairs(self, before, old, key, new, reason, damage=None):
        for end, content in zip(("", ".unfinished"), before.split("|")):
            pathlib.Path(f"{self.file}{end}").write_text(content)
        lock = pathlib.Path(f"{self.file}.lock")
        lock.touch()  # Of a process that has died.
        untouched = self.everything()
        is_fresh = "settingsVersion=1" not in before
        self.assertEqual(self.run_check(self.file), 1)
        self.assertEqual(self.output.count(TOO_OLD), is_fresh)
        self.assertNotRegex(self.output, "[\x1b\u2000-\u206f\u061c]")
        self.assertTrue(self.output.startswith(f'"{self.file}": needs repair\n'), self.output)
        self.assertEqual(", for the old value " in self.output, old is not None)
        self.assertEqual(re.findall("\n  damaged: (.*)\n", self.output), [damage] if damage else [])
        self.assertEqual(self.run_check("--json", self.file), 1)
        self.assertEqual(self.everything(), untouched)
        self.assertEqual(self.report["file"], str(self.file))
        self.assertEqual(self.report["damage"], damage)
        self.assertEqual(self.report["freshStart"], is_fresh)
        changes = self.report["changes"]
        change = self.change(key)
        self.assertEqual(change["old"], old)
        user = os.path.basename(self.report["folders"][0])
        self.assertTrue(user)
        self.assertEqual(change["new"], new.format(root=self.root, user=user))
        self.assertIn(reason, change["reason"])

        lock.unlink()
        self.assertEqual(self.run_check("--repair", "--json", self.file), 4)
        self.assertFalse(self.report["freshStart"])
        self.assertTrue(self.report["folders"])
        self.assertEqual(self.report["changes"], changes)
        stored = self.stored()
        self.assertEqual({one["key"]: one["new"] for one in changes},
                         {one["key"]: stored[one["key"]] for one in changes})
        self.assertEqual(stored.get("x/y"), "🙂" if "[x]" in before else None)
        copy = self.report["copy"]
        if ", " in before or (damage or "").startswith("line"):
            self.assertEqual(pathlib.Path(copy).read_text(), before)
        else:
            self.assertIsNone(copy)

        pathlib.Path(f"{self.file}.2020-01-01T00-00-00.000Z.bak").write_bytes(self.file.read_bytes())
        self.assertEqual(self.run_check("--repair", "--json", self.file), 0)
        self.assertIsNone(self.report["copy"])

    def test_tells_and_repairs(self):
        for name, (before, *expected) in REPAIRS.items():
            with self.subTest(name):
                self.begin()
                self.tells_and_repairs(before.replace("{root}", str(self.root)), *expected)

    def test_cannot_be_repaired(self):
        for obstacle, error in OBSTACLES.items():
            if error == "another user" and os.geteuid() != 0:
                continue  # Others cannot give a file away.
            with self.subTest(obstacle):
                self.begin()
                subprocess.run(["sh", "-c", obstacle, "sh", self.file, self.root / "cache"], check=True)
                untouched = self.everything()
                seems_repairable = error in ("another user", "does not exist", "has locked it")
                self.assertEqual(self.run_check(self.file), 1 if seems_repairable else 2)
                self.assertEqual(self.output.count(TOO_OLD), obstacle.count("touch"))
                self.assertEqual(self.everything(), untouched)
                self.assertEqual(self.run_check("--repair", self.file), 2)
                self.assertIn(error, self.output)
                self.assertEqual(self.run_check("--json", self.file, "--repair"), 2)
                self.assertIn(error, self.report["error"])
                self.assertEqual(self.everything(with_times=False).keys(), untouched.keys())

    def test_repairs_all_or_nothing(self):
        self.file.write_text("//=1\ngarbage\n")
        usual = self.environment["XDG_CONFIG_HOME"]
        self.environment["XDG_CONFIG_HOME"] = f"{self.root}/cache"
        self.assertEqual(self.run_check(self.file), 1)
        # The folder of the log is above that of the cache, and created with it.
        self.assertEqual(self.output.count("missing folder"), 1)
        self.environment["XDG_CONFIG_HOME"] = usual
        self.assertEqual(self.run_check(self.file), 1)
        self.assertIn(f'\n  missing folder "{self.root}', self.output)
        self.assertIn('\n  engine: missing -> "deferred"\n', self.output)
        self.assertEqual(self.run_check("--repair", self.file), 4)
        self.assertIn(f'\n  created folder "{self.root}', self.output)
        self.assertIn('\n  a copy of the former file is kept as "', self.output)
        lock = pathlib.Path(f"{self.file}.lock")
        lock.mkdir()
        self.assertEqual(self.run_check(self.file), 0)  # It need not be written.
        lock.rmdir()
        cache = self.root / "cache"
        cache.rename(self.root / "away")
        self.assertEqual(self.run_check(self.file), 1)  # Only a folder is missing.
        (self.root / "away").rename(cache)
        before = "[DBCache]\ncacheDirectory=/gone\ncacheSize=1\n"
        self.file.write_text(before)
        self.assertEqual(self.run_check(self.file), 1)
        self.assertNotIn("missing folder", self.output)  # That of the default is there.
        self.assertIn(f'Directory: "/gone" -> "{self.root}', self.output)
        self.assertIn('", for the old value is not an existing folder\n', self.output)
        self.assertNotIn("cacheSize", self.output)
        self.environment["XDG_CONFIG_HOME"] = f"{self.root}/{'a' * 300}"  # Too long to be created.
        self.assertEqual(self.run_check("--repair", self.file), 2)
        self.assertEqual(self.file.read_text(), before)

    def test_value_that_another_program_writes_stays(self):
        self.file.write_text("[General]\nengine=bad\n[DBCache]\ncacheDirectory=/gone\n")
        lock = pathlib.Path(f"{self.file}.lock")
        lock.touch()  # Of a program that has not written its name yet.
        with self.start("--repair", "--json", self.file) as process:
            while not (self.root / "cache").exists() and process.poll() is None:
                time.sleep(0.001)
            # The file has been inspected, and the lock is waited for.
            self.file.write_text("[General]\nengine=software\n[DBCache]\ncacheDirectory=/tmp////\n")
            lock.unlink()
            self.report = json.loads(process.stdout.read())
        self.assertEqual(process.returncode, 4)
        self.assertEqual(self.change("DBCache/cacheDirectory")["new"], "/tmp")
        stored = self.stored()
        self.assertEqual([stored["engine"], stored["DBCache/cacheDirectory"]], ["software", "/tmp"])

    def test_default_folders_are_those_of_the_user(self):
        home = pwd.getpwuid(os.geteuid()).pw_dir.rstrip("/")
        rows = {
            "with slashes at its end": ({"XDG_CONFIG_HOME": f"{self.root}/there//"}, f"{self.root}/there"),
            "relative": ({"XDG_CONFIG_HOME": "there", "HOME": f"{self.root}/"}, f"{self.root}/.config"),
            "not set": ({"XDG_CONFIG_HOME": "", "HOME": ""}, f"{home}/.config"),
        }
        self.file.touch()
        for name, (environment, folder) in rows.items():
            with self.subTest(name):
                self.environment.update(environment)
                self.run_check("--json", self.file)
                self.assertIn(f'"{folder}/TorvaneBoundlessX64/log.txt"', self.output.replace("\\", ""))

    def test_many_files(self):
        clean, broken, folder = self.root / "cl\nean.ini", self.file, self.root
        clean.touch()
        self.assertEqual(self.run_check("--repair", clean), 4)
        content = clean.read_text()
        clean.write_text(content.replace("engine=deferred", "engine=software"))
        self.assertEqual(self.run_check(clean), 0)
        self.assertTrue(self.output.endswith('/cl\\u000aean.ini": clean\n'), self.output)
        self.assertIn("\ncacheSize=4096\n", content)
        self.assertIn("\ndebuglogtypeblacklist=\n", content)
        broken.write_text(content + "garbage\n")
        # Standard input, arguments, the exit code, and the state of each file.
        rows = (
            (b"", [clean, broken], 1, "clean, needs repair"),
            (b"", [broken, folder, clean], 2, "needs repair, not repairable, clean"),
            (os.fsencode(broken) + b"\n\n", ["-", clean], 1, "needs repair, clean"),
            (os.fsencode(clean) + b"\0" + os.fsencode(broken) + b"\0", ["-"], 1, "clean, needs repair"),
            (b"caf\351\n" + os.fsencode(broken), [clean, "-"], 2, "clean, not repairable, needs repair"),
            (b"", ["--repair", broken, folder], 2, "repaired, not repairable"),
        )
        for names, arguments, exit_code, states in rows:
            with self.subTest(states):
                self.assertEqual(self.run_check(*arguments, "--json", names=names), exit_code)
                lines = self.output.splitlines()
                self.assertEqual(", ".join(json.loads(line)["state"] for line in lines), states)

    def test_usage(self):
        rows = (([], 3), ([""], 3), (["--fix", "a"], 3), (["-h"], 0), (["--help"], 0),
                (["--", "--help"], 1))  # A file like an option.
        for arguments, exit_code in rows:
            with self.subTest(arguments):
                self.assertEqual(self.run_check(*arguments), exit_code)
                is_help = self.output.startswith("usage:") and "\nExit codes" in self.output
                self.assertEqual(is_help, exit_code == 0)
        self.assertEqual(self.run_check("--version"), 0)
        self.assertTrue(self.output.startswith("torvane-settings-check 1."))

    def test_streams_that_fail(self):
        rows = (
            ('exec "$0" --help >/dev/full', 2),
            ('exec "$0" /gone >/dev/full', 2),
            ('exec "$0" - <&-', 2),
            ('"$0" - <&- 2>&1 >/dev/null | grep "list of files cannot be read"', 0),
            ('"$0" -h 2>&1 >/dev/full | grep "report cannot be written: No space"', 0),
            ('"$0" "$(printf "caf\\351")" | grep "name is not UTF-8 text"', 0),
            ('"$0" 2>&1 >/dev/null | grep ^usage:', 0),
        )
        for command, exit_code in rows:
            with self.subTest(command):
                self.assertEqual(self.shell(command), exit_code)

    def test_reader_that_has_gone(self):
        reader, writer = os.pipe()
        os.close(reader)
        result = subprocess.run([PROGRAM, "/gone"], stdout=writer, stderr=subprocess.DEVNULL)
        os.close(writer)
        self.assertEqual(result.returncode, 2)

    def test_needs_no_graphical_libraries(self):
        self.assertEqual(self.shell('test $(ldd "$0" | grep -c libQt) = 1'), 0)
        # An empty entry in a run path would stand for the working directory.
        self.assertEqual(self.shell('cd "${0%/*}" && all=$(readelf -d torvane* ../lib/*.so) &&'
                                    ' ! echo "$all" | grep -E "PATH.*(\\[:|::|:])"'), 0)

    @staticmethod
    def shell(command):
        return subprocess.run(["sh", "-c", command, PROGRAM], capture_output=True).returncode


if __name__ == "__main__":
    PROGRAM = os.path.abspath(sys.argv.pop(1))
    unittest.main()
