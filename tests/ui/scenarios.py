"""Scenarios: functions that use a program and look at what comes of it.

Each begins on a program of its own, all of one resolution share a session of Wine.
One that fails leaves a picture of the whole screen and the others go on.
"""
import argparse
import os
import random
import subprocess
import sys
import time
import traceback

from windows import Session

SCENARIOS = []


def scenario(*resolutions):
    """Marks a function of the opened program; without resolutions it is for 96 dpi."""
    def mark(function):
        SCENARIOS.append((function, resolutions or (96,)))
        return function
    return mark


def equal(got, want):
    assert got == want, f"{got!r} is not {want!r}"


def near(got, want, allowed):
    assert abs(got - want) <= allowed, f"{got} is not {want}, nor within {allowed} of it"


def file_of(function):
    return os.path.splitext(os.path.basename(function.__code__.co_filename))[0]


def run(description, open_program, add_arguments=lambda parser: None):
    """The scenarios of a file, as its arguments ask for; ends the program.

    open_program(session, arguments, name) gives what a scenario gets; its
    close() ends what is still there.
    """
    parser = argparse.ArgumentParser(description=description)
    parser.add_argument("--wine", required=True, help="tools/wine32 or tools/wine64")
    parser.add_argument("--agent", required=True)
    parser.add_argument("--shots", required=True, help="folder for pictures and logs")
    add_arguments(parser)
    parser.add_argument("--of", action="append", metavar="FILE",
                        help="only the scenarios of this file, without .py")
    parser.add_argument("--not-of", action="append", metavar="FILE", default=[],
                        help="all but those of this file")
    parser.add_argument("names", nargs="*", help="all, if none is named")
    arguments = parser.parse_args()
    if subprocess.run([arguments.wine, "status"], stdout=subprocess.DEVNULL).returncode:
        print(f"no Wine here, so no window is tried ({arguments.wine} setup installs it)")
        sys.exit(1 if os.environ.get("TARNWICK_NO_SKIP") else 77)
    chosen = [(function, resolutions) for function, resolutions in SCENARIOS
              if (not arguments.names or function.__name__ in arguments.names)
              and (not arguments.of or file_of(function) in arguments.of)
              and file_of(function) not in arguments.not_of]
    # Wine's programs and its server ask each other all the time: on one processor that
    # takes a quarter less of it. The tests that go beside this one have theirs.
    os.sched_setaffinity(0, {random.choice(sorted(os.sched_getaffinity(0)))})
    failed = count = 0
    for dpi in sorted({one for _, resolutions in chosen for one in resolutions}):
        with Session(arguments.wine, arguments.agent, arguments.shots, dpi) as session:
            for function in [one for one, resolutions in chosen if dpi in resolutions]:
                count += 1
                failed += not run_one(function, session, arguments, open_program)
    print(f"{count} scenarios, {failed} failed")
    sys.exit(1 if failed or not count else 0)


def run_one(function, session, arguments, open_program):
    name, started, opened = f"{function.__name__} at {session.dpi} dpi", time.monotonic(), None
    session.screen.do("mousemove", session.screen.width - 1, session.screen.height - 1)
    try:
        opened = open_program(session, arguments, function.__name__)
        function(opened)
        print(f"  {name}: {time.monotonic() - started:.1f} s", flush=True)
        return True
    except Exception:  # whatever it is, the others go on
        traceback.print_exc()
        path = os.path.join(session.folder, f"failed-{function.__name__}-{session.dpi}dpi.png")
        session.screen.picture().save(path)
        print(f"FAILED: {name}, see {path}", flush=True)
        return False
    finally:
        # Nothing stays pressed for the next one.
        session.screen.do("mouseup", 1, "mouseup", 3, "keyup", "ctrl")
        if opened is not None:
            opened.close()
