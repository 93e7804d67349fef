#!/usr/bin/env python3
"""Installs a build into a scratch prefix, moves it, starts the program from there without a display, and removes it.
Arguments: the cmake program and the build folder."""
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path


def wait_for(condition, process, seconds=30):
    """Whether the condition came true before the process ended or the time was over."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if condition():
            return True
        if process.poll() is not None:
            return False
        time.sleep(0.02)
    return False


class Installation(unittest.TestCase):
    cmake = ""
    build = Path()

    def setUp(self):
        self.scratch = Path(tempfile.mkdtemp(prefix="zolto install "))
        self.addCleanup(shutil.rmtree, self.scratch)
        self.home = self.scratch / "home"
        self.home.mkdir(mode=0o700)
        self.data = self.home / "data" / "zolto"

    def install(self, prefix, destdir=""):
        environment = dict(os.environ, DESTDIR=str(destdir)) if destdir else os.environ
        subprocess.run([self.cmake, "--install", self.build, "--prefix", prefix], check=True, env=environment,
                       stdout=subprocess.DEVNULL)

    def start(self, program, *files):
        """Starts the program, waits until the file is open, ends it as the end of a session does."""
        environment = {"PATH": os.environ["PATH"], "HOME": str(self.home), "QT_QPA_PLATFORM": "offscreen",
                       "XDG_CONFIG_HOME": str(self.home / "config"), "XDG_DATA_HOME": str(self.home / "data"),
                       "XDG_RUNTIME_DIR": str(self.home), "ASAN_OPTIONS": "detect_leaks=0"}
        recent = self.home / "config" / "zolto" / "Zolto.conf"
        recent.unlink(missing_ok=True)
        process = subprocess.Popen([program, *files], env=environment)
        try:
            opened = wait_for(lambda: recent.exists() and files[0].name in recent.read_text(), process)
            self.assertTrue(opened, "the file did not become a recent file")
            process.send_signal(signal.SIGTERM)
            self.assertEqual(process.wait(30), 0)
        finally:
            process.kill()
            process.wait()
        self.assertFalse((self.data / "error.log").exists())

    def test_a_moved_installation_starts_and_fills_the_users_folder(self):
        self.install(self.scratch / "first prefix")
        prefix = self.scratch / "moved prefix"
        (self.scratch / "first prefix").rename(prefix)
        for installed in ("share/applications/zolto.desktop", "share/icons/hicolor/scalable/apps/zolto.svg",
                          "share/doc/zolto/LICENSE", "share/doc/zolto/examples/DeepVein/DeepVein.zpf"):
            self.assertTrue((prefix / installed).exists(), installed)
        shutil.copytree(prefix / "share/doc/zolto/examples/DeepVein", self.home / "my games")
        source = self.home / "my games" / "DeepVein.bb"
        subprocess.run(["chmod", "-R", "a-w", prefix], check=True)
        self.addCleanup(subprocess.run, ["chmod", "-R", "u+w", prefix])
        self.start(prefix / "bin/zolto", source)
        shipped = {path.relative_to(prefix / "share/zolto") for path in (prefix / "share/zolto").rglob("*")}
        self.assertGreater(len(shipped), 20)
        self.assertEqual([path for path in shipped if not (self.data / path).exists()], [])
        self.assertIn(str(source), (self.data / "Conf/LastWorkspace.zws").read_text())
        compiler = self.data / "Compilers/ZoltoBasic/bin/blitzcc"
        subprocess.run([compiler, "-c", source], check=True, stdout=subprocess.DEVNULL)

        # The next version brings a changed file, and the user has changed another.
        subprocess.run(["chmod", "-R", "u+w", prefix], check=True)
        for name in ("Conf/hotcodes.dat", "Layout.mp"):
            with open(prefix / "share/zolto" / name, "a") as file:
                file.write("\n")
        with open(self.data / "Conf/hotcodes.dat", "a") as file:
            file.write("mine")
        self.start(prefix / "bin/zolto", source)
        self.assertEqual((self.data / "Layout.mp").read_bytes(), (prefix / "share/zolto/Layout.mp").read_bytes())
        self.assertTrue((self.data / "Conf/hotcodes.dat").read_text().endswith("mine"))

    def test_what_is_installed_below_a_staging_folder_can_be_removed(self):
        stage = self.scratch / "stage"
        self.install("/usr", stage)
        self.assertTrue((stage / "usr/bin/zolto").exists())
        other = stage / "usr/share/applications/other.desktop"
        other.write_text("")
        subprocess.run([self.cmake, "--build", self.build, "--target", "uninstall"], check=True,
                       env=dict(os.environ, DESTDIR=str(stage)), stdout=subprocess.DEVNULL)
        left = [path for path in stage.rglob("*") if path.is_file()]
        self.assertEqual(left, [other])
        self.assertEqual([path for path in stage.rglob("*zolto*")], [])


if __name__ == "__main__":
    Installation.build = Path(sys.argv.pop(2))
    Installation.cmake = sys.argv.pop(1)
    unittest.main()
