# The compiled part is private: the package's own files check and describe what goes in and comes out.
from typing import Any

def __getattr__(name: str) -> Any: ...
