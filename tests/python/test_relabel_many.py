"""The example that relabels a folder of logs, with a worker killed half-way."""
import os
import signal
import sys
from pathlib import Path

import pandas
import pytest

sys.path.insert(0, str(Path(__file__).parents[2] / "examples/python"))
distributed = pytest.importorskip("distributed")
import relabel_many  # noqa: E402


def test_nothing_is_lost_when_a_worker_dies(tmp_path):
    def slowly(*arguments):
        import time
        time.sleep(0.3)
        return relabel_many.relabel(*arguments)

    (tmp_path / "in").mkdir()
    for log in range(10):
        rows = [f"{log}/{row},00:{log:02}:{row // 25 % 60:02}:{row % 25:02}" for row in range(300)]
        (tmp_path / f"in/{log}.csv").write_text("\n".join(["scene,start", *rows, "bad,01:00:61:00"]) + "\n")

    with distributed.LocalCluster(n_workers=2, threads_per_worker=1, dashboard_address=None) as cluster, \
            distributed.Client(cluster) as client:
        workers = client.run(os.getpid)
        done = relabel_many.relabel_folder(client, tmp_path / "in", tmp_path / "out", "start", "25", "29.97df", slowly)
        written = [next(done) for _ in range(4)]
        os.kill(list(workers.values())[0], signal.SIGKILL)
        written += done

    assert len(written) == len(set(written)) == 10
    for log in range(10):
        before = pandas.read_csv(tmp_path / f"in/{log}.csv", dtype=str, keep_default_na=False)
        after = pandas.read_csv(tmp_path / f"out/{log}.csv", dtype=str, keep_default_na=False)
        assert after[["scene", "start"]].equals(before)
        if log in (0, 1, 9):  # 541 seconds are 16213.8 frames, and 18 labels are left out
            assert after["start_29.97df"].iloc[25] == f"00:{log:02}:01;{2 if log == 9 else 0:02}"
        assert (after["start_29.97df"] != "").tolist() == [True] * 300 + [False]
        assert after["start_problem"].iloc[-1].endswith("nearest is 01:00:59.00")
