#!/usr/bin/env python3
"""Writes a column of labels anew in every log of a folder, on two workers:

    relabel_many.py LOGS OUT --column start --from 25 --to 29.97df

The logs are CSV files with the same columns. Each gets two columns more: the new label, and the reason if it was
refused. If a worker dies, Dask gives its logs to another one.
"""
from __future__ import annotations

import argparse
import sys
from pathlib import Path
from typing import Callable, Iterator

import dask.dataframe
import pandas
from dask.distributed import Client, LocalCluster, as_completed

import labelsbase


def relabel(rows: pandas.DataFrame, column: str, from_type: str, to_type: str) -> pandas.DataFrame:
    """Return the rows with the columns COLUMN_TYPE, empty where the label is not valid, and COLUMN_problem."""
    texts = rows[column].to_numpy(str)
    samples, refused = labelsbase.to_samples(from_type, texts, errors="mask")
    new = f"{column}_{to_type}"
    rows = rows.assign(**{new: "", f"{column}_problem": ""})
    valid = ~refused
    rows.loc[valid, new] = labelsbase.to_text(to_type, labelsbase.convert(from_type, to_type, samples[valid]))
    rows.loc[refused, f"{column}_problem"] = [problem(from_type, text) for text in texts[refused]]
    return rows


def problem(type: str, text: str) -> str:
    try:
        labelsbase.parse(type, text)
    except labelsbase.LabelError as error:
        return str(error)
    return ""


def relabel_folder(client: Client, logs: Path, out: Path, column: str, from_type: str, to_type: str,
                   change: Callable[..., pandas.DataFrame] = relabel) -> Iterator[str]:
    """Relabel every log. Yield the path of each new log once it is written, in the order in which they are ready."""
    files = sorted(logs.glob("*.csv"))
    if not files:
        raise SystemExit(f"{logs}: expected CSV files")
    out.mkdir(parents=True, exist_ok=True)
    rows = dask.dataframe.read_csv(files, dtype=str, keep_default_na=False, blocksize=None)  # one part a file
    meta = relabel(rows._meta, column, from_type, to_type)
    changed = rows.map_partitions(change, column, from_type, to_type, meta=meta)
    tasks = changed.to_csv([str(out / file.name) for file in files], index=False, compute=False)
    for done in as_completed(client.compute(tasks)):
        yield done.result()


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("logs", type=Path, help="folder of logs")
    parser.add_argument("out", type=Path, help="folder for the new logs")
    parser.add_argument("--column", required=True)
    parser.add_argument("--from", dest="from_type", required=True, metavar="TYPE")
    parser.add_argument("--to", dest="to_type", required=True, metavar="TYPE")
    given = parser.parse_args()
    with LocalCluster(n_workers=2, threads_per_worker=1, dashboard_address=None) as cluster, Client(cluster) as client:
        for path in relabel_folder(client, given.logs, given.out, given.column, given.from_type, given.to_type):
            print(path)
    return 0


if __name__ == "__main__":
    sys.exit(main())
