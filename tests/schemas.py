#!/usr/bin/env python3
"""Holds what every command writes with --format against its JSON Schema: schemas.py TOOL"""
import csv
import io
import itertools
import json
import subprocess
import sys

try:
    import jsonschema
except ImportError:
    sys.exit(77)  # skipped

decision_list = """TITLE: CUT
FCM: NON-DROP FRAME
001 A001 V C 01:00:00:00 01:00:02:00 10:00:00:00 10:00:01:00
002 A002 V C 01:00:00:00 01:00:09:99 10:00:02:00 10:00:12:00
"""

# Arguments and input for each command: some that are accepted, some that are refused.
samples = {
    "types": [], "media": [], "choices": [],
    "show": ["25", "0", "x"],
    "read": ["35mm", "KJ1234560123+07", "é\\\",\t"],
    "convert": ["--from", "25", "--to", "29.97df", "01:00:00:00", "00:00:00:12", "99"],
    "add": ["25", "01:00:00:00", "1", ""],
    "diff": ["25", "01:00:00:00", "00:00:00:00", "-"],
    "range": ["25", "01:00:00:00", "01:00:00:03"],
    "day": ["12"],
    "now": ["25"],
    "roll": ["--for", "29,1", "28,1", "no"],
    "clock": ["3600", "0.1", "1e-9", "no"],
    "check": ["--rate", "25", "--durations"],
}

most_rows = 1000  # that are looked at: a day has a million


def run(*arguments):
    return subprocess.run([sys.argv[1], *arguments], input=decision_list, capture_output=True, text=True).stdout


def commands_with_formats():
    refused = subprocess.run([sys.argv[1], "schema", ""], capture_output=True, text=True).stderr
    return refused.split("--format: ")[1].strip().split(", ")


for command in commands_with_formats():
    schema = json.loads(run("schema", command))
    jsonschema.Draft202012Validator.check_schema(schema)
    arguments = [command, "--format", "json", *samples[command]]
    rows = json.loads(run(*arguments))[:most_rows]
    jsonschema.validate(rows, schema)
    assert rows, command
    if command == "now":
        continue
    arguments[2] = "jsonl"
    assert [json.loads(line) for line in run(*arguments).splitlines()[:most_rows]] == rows, command
    arguments[2] = "csv"
    as_text = lambda v: "" if v is None else v if isinstance(v, str) else json.dumps(v)
    table = list(itertools.islice(csv.DictReader(io.StringIO(run(*arguments), newline="")), most_rows))
    numbers = [name for name, is_a in schema["items"]["properties"].items() if "number" in is_a["type"]]
    for found, row in zip(table, rows, strict=True):
        assert list(found) == list(row), command
        for name, text in found.items():
            assert float(text) == row[name] if name in numbers and text else text == as_text(row[name]), (command, name)
