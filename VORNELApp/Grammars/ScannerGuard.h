/// Stands before each scanner of a grammar, so that none reaches past its memory, whatever it reads: some
/// write a few bytes more of their state than there is room for, and ask of any character whether it is a
/// digit.
#pragma once

#include <ctype.h>
#include <tree_sitter/parser.h>
#include <wctype.h>

#undef TREE_SITTER_SERIALIZATION_BUFFER_SIZE
#define TREE_SITTER_SERIALIZATION_BUFFER_SIZE 1000
#undef isdigit
#define isdigit iswdigit
