"""Film and video labels to samples and back: timecode, key numbers, ink numbers, feet and frames, frame counts.

>>> import labelsbase
>>> labelsbase.to_text("29.97df", [0, 1799, 1800, 17982])
array(['00:00:00;00', '00:00:59;29', '00:01:00;02', '00:10:00;00'],
      dtype='<U11')
>>> labelsbase.parse("35mm", "KJ1234560123+07").sample
7900

Samples are frames for timecode and film frames, and perforations for other film.
"""
from ._arrays import add, diff, is_valid, to_samples, to_text
from ._enums import Family, FrameRate, Generation, LabelType, Medium, Transfer
from ._points import INVALID_SAMPLE, LabelError, LabelPoint, parse
from ._types import LabelFacts, NamedType, TypeName, facts, find_type, type_names

__all__ = [
    "INVALID_SAMPLE", "Family", "FrameRate", "Generation", "LabelError", "LabelFacts", "LabelPoint", "LabelType",
    "Medium", "NamedType", "Transfer", "TypeName", "add", "diff", "facts", "find_type", "is_valid", "parse",
    "to_samples", "to_text", "type_names",
]
for _name in __all__:
    _thing = globals()[_name]
    if getattr(_thing, "__module__", "").startswith("labelsbase."):
        _thing.__module__ = "labelsbase"
del _name, _thing
