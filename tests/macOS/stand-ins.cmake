# What the toolkit's own CMake files look for in a Mac's SDK.
add_library(WrapOpenGL::WrapOpenGL INTERFACE IMPORTED GLOBAL)
