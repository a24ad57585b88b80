# Turns plain comments into those that doxygen reads: that of the first line describes the file, one behind code
# describes what stands before it.
1s,^// ?,/// \\file\n/// ,
s,^( *)//( |$),\1///\2,
s:([;,{}]) +// :\1  ///< :
