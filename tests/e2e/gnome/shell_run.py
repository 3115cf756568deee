"""What each run of checks under the headless GNOME Shell shares: its folders, the shell, the
lines it prints, the screenshots it keeps, and how it ends.

  ShellRun   the base of a run: subclasses give `run()`, which starts the shell and checks
  main()     runs one, prints PASSED or FAILED and gives the exit status
"""
import os
import sys
import time

from headless_shell import HeadlessShell, screenshot


class ShellRun:
    def __init__(self, brimly, work):
        self.brimly, self.work = brimly, work
        self.started = time.monotonic()
        self.failures = 0
        for folder in ("runtime", "home", "logs", "shots", "config"):
            os.makedirs(f"{work}/{folder}", mode=0o700, exist_ok=True)
        self.shell = HeadlessShell(f"{work}/runtime", f"{work}/home", f"{work}/logs")
        self.shots = 0
        self.brimly_process = None

    def say(self, text):
        print(f"{text} [{time.monotonic() - self.started:.1f} s]", flush=True)

    def check(self, description, passed):
        print(("ok    " if passed else "FAIL  ") + description, flush=True)
        self.failures += 0 if passed else 1
        return passed

    def screen(self, name=None):
        """The screen now; kept in shots/ as `name`, else in logs/ under a number."""
        self.shots += 1
        path = f"{self.work}/{'shots' if name else 'logs'}/{name or f'shot-{self.shots}'}.png"
        return screenshot(self.bus, path)

    def finish(self):
        if self.brimly_process and self.brimly_process.poll() is None:
            self.brimly_process.kill()
        self.shell.stop()
        errors = self.shell.log("brimly.err").strip()
        if errors:
            print("      brimly wrote on stderr:")
            print("\n".join("      | " + line for line in errors.splitlines()))


def main(run_class):
    run = run_class(sys.argv[1], sys.argv[2])
    try:
        run.run()
    except Exception as error:  # the shell or a client failed to come up: say what and where
        print(f"FAIL  {error}")
        run.failures += 1
    finally:
        run.finish()
    print("PASSED" if run.failures == 0 else f"FAILED: {run.failures} check(s)")
    return 1 if run.failures else 0
