"""The package as a whole: its types, and its start and end."""
import os
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import labelsbase

CALLS = '''
import numpy as np
import labelsbase as labels

texts: np.ndarray = labels.to_text("25", [0, 1], dtype="S")
point: labels.LabelPoint = labels.parse("25", "00:00:01.00") + 1
frames: int = point - point
later: labels.LabelPoint = labels.convert("25", "24", point)
medium: int = labels.Medium.src_25p
labels.to_text(["25"], [0])  # type: ignore[arg-type]
labels.parse("25", "", illegal="keep")  # type: ignore[arg-type]
labels.Medium.src_26p  # type: ignore[attr-defined]
'''


def test_types(tmp_path):
    (tmp_path / "calls.py").write_text(CALLS)
    package = Path(labelsbase.__file__).parent
    checked = subprocess.run(
        [sys.executable, "-m", "mypy", "--disallow-untyped-defs", "--warn-unused-ignores", "--cache-dir", tmp_path,
         "-p", "labelsbase", "-m", "calls"],
        cwd=tmp_path, env={**os.environ, "MYPYPATH": f"{package.parent}:{tmp_path}"}, text=True, capture_output=True)
    assert checked.returncode == 0, checked.stdout + checked.stderr


def test_a_hundred_processes_start_and_end():
    words = "import labelsbase as l; assert l.to_text('29.97df', [1800])[0] == '00:01:00;02'; l.parse('35mm', 'KJ1234560123+07')"

    def run(_):
        return subprocess.run([sys.executable, "-c", words], text=True, capture_output=True)

    with ThreadPoolExecutor(os.cpu_count()) as threads:
        for done in threads.map(run, range(100)):
            assert (done.returncode, done.stdout, done.stderr) == (0, "", "")
