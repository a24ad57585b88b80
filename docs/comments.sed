# Turns plain comments into doxygen's: the first comment describes the file, a comment behind code describes that code,
# any other the declaration below it. The comment behind a closing brace of a namespace stays plain.
1s,^// ?,/// \\file\n/// ,
s,^( *)//( |$),\1///\2,
/^}  \/\/ namespace/!s:([;,{}]) +// :\1  ///< :
