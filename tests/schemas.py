#!/usr/bin/env python3
"""Holds what every command writes with --format against its JSON Schema: schemas.py TOOL"""
import csv
import itertools
import json
import subprocess
import sys
import tempfile

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
    "keep": ["LABEL_REV:1 pal_label 01:00:00.00 250 0.04 1 MediumRollId 20,2",
             "LABEL_REV:2 keycode_353_label KJ1234560001+00.1 16 0.05 0", "LABEL_REV:3 x", "no"],
    "count": ["29.97df", "--transfer", "2:3", "--edit", "film", "--phases", "00:00:00;03", "00:01:00;00"],
    "cadence": ["--timecode", "01:00:00:00", "--key", "1234+00"],
    "pitch": ["29.97df", "src_2997p"],
    "check": ["--rate", "25", "--durations"],
}

most_lines = 300  # that are looked at: a day has a million


def lines_of(*arguments):
    """The first lines that the tool writes. It ends when nobody reads the others."""
    with tempfile.TemporaryFile("w+") as given:
        given.write(decision_list)
        given.seek(0)
        streams = {"stdin": given, "stdout": subprocess.PIPE, "stderr": subprocess.DEVNULL}
        with subprocess.Popen([sys.argv[1], *arguments], text=True, **streams) as tool:
            return list(itertools.islice(tool.stdout, most_lines))


def read_array(lines):
    text = "".join(lines)
    return json.loads(text if text.endswith("\n]\n") else text.rstrip(",\n") + "]")


def commands_with_formats():
    refused = subprocess.run([sys.argv[1], "schema", ""], capture_output=True, text=True).stderr
    return refused.split("--format: ")[1].strip().split(", ")


for command in commands_with_formats():
    schema = json.loads("".join(lines_of("schema", command)))
    jsonschema.Draft202012Validator.check_schema(schema)
    arguments = [command, "--format", "json", *samples[command]]
    rows = read_array(lines_of(*arguments))
    jsonschema.validate(rows, schema)
    assert rows, command
    if command == "now":
        continue
    arguments[2] = "jsonl"
    assert [json.loads(line) for line in lines_of(*arguments)[: most_lines - 1]] == rows, command
    arguments[2] = "csv"
    as_text = lambda v: "" if v is None else v if isinstance(v, str) else json.dumps(v)
    numbers = [name for name, is_a in schema["items"]["properties"].items() if "number" in is_a["type"]]
    for found, row in zip(csv.DictReader(lines_of(*arguments)), rows, strict=True):
        assert list(found) == list(row), command
        for name, text in found.items():
            assert float(text) == row[name] if name in numbers and text else text == as_text(row[name]), (command, name)
