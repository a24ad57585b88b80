"""Reads a column of labels through ctypes, without a binding of any kind."""
import ctypes
import sys

labels = ctypes.CDLL(sys.argv[1])
texts = [b"00:01:00;02", b"00:01:00;00", b"23:59:59;29"]
cells = b"".join(text.ljust(16, b"\0") for text in texts)
samples, refused = (ctypes.c_int32 * 3)(), ctypes.c_size_t()
status = labels.labels_read_array(7, cells, ctypes.c_size_t(16), ctypes.c_size_t(3), samples, ctypes.byref(refused))
assert (status, list(samples), refused.value) == (1, [1800, -100000000, 2589407], 1), list(samples)
