#pragma once

#include <vector>

#include "zyndle/companion.h"

namespace zyndle {

/// `arguments` without --lang, wherever that stands before a "--". Has everything after this call,
/// companions included, speak its language, or without it that of the environment. It precedes the
/// reading of all other arguments, whose help is translated too. With --ascii among them the texts
/// and the problems are in ASCII, and a language written in other letters gives way to English. A
/// CommandError when the value of --lang is missing or names no known language.
std::vector<const char*> chooseLanguage(Arguments arguments);

}  // namespace zyndle
