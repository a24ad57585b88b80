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
from ._convert import convert
from ._core import __version__
from ._counting import (FilmFrame, Option, VideoFrame, cel_to_clock, clock_to_cel, film_to_video, options, set_option,
                        video_to_film)
from ._enums import Family, FrameRate, Generation, LabelType, Medium, Transfer
from ._labels import EditLabel, Label
from ._media import (LabelChoice, MediumFacts, Roll, find_choice, find_medium, label_choices, medium_facts)
from ._points import INVALID_SAMPLE, LabelError, LabelPoint, parse
from ._types import LabelFacts, NamedType, TypeName, facts, find_type, type_names

__all__ = [
    "EditLabel", "Family", "FilmFrame", "FrameRate", "Generation", "INVALID_SAMPLE", "Label", "LabelChoice",
    "LabelError", "LabelFacts", "LabelPoint", "LabelType", "Medium", "MediumFacts", "NamedType", "Option", "Roll",
    "Transfer", "TypeName", "VideoFrame", "add", "cel_to_clock", "clock_to_cel", "convert", "diff", "facts", "film_to_video", "find_choice",
    "find_medium", "find_type", "is_valid", "label_choices", "medium_facts", "options", "parse", "set_option",
    "to_samples", "to_text", "type_names", "video_to_film",
]
for _name in __all__:
    _thing = globals()[_name]
    if getattr(_thing, "__module__", "").startswith("labelsbase."):
        _thing.__module__ = "labelsbase"
del _name, _thing
