// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

// Stands for NSLocalizedString and the string tables of a bundle. The table comes first, because
// the tools that collect the texts want it there. Texts are UTF-8.

/// Marks a text of a constant table, which `localized` gets later.
#define LOCALIZABLE(table, text) text

/// The text in the user's language, or as it is. `comment` is for translators and tells equal texts
/// apart. With a `count` from 0 on, %n stands for it, and the language's plural is taken.
std::string localized(const char* table, const char* text, const char* comment = nullptr,
                      int count = -1);

/// The text with `parts` in the places of %1, %2 and so on, at most nine.
std::string filled(const std::string& text, std::initializer_list<std::string> parts);

/// How texts follow one another, each in its language's way.
enum class Joint {
    Sentences, ///< "One. Two."
    Clauses,   ///< "one; two"
    Items,     ///< "one, two"
    Note,      ///< "what it is (one)"
    Value,     ///< "12.5 sec. What it means."
};

/// The parts in a row; empty ones are left out.
std::string joined(Joint joint, const std::vector<std::string>& parts);

/// The text with each point between two digits as the user's language has it.
std::string localizedNumbers(std::string text);

/// Takes the user's first language that the bundle's Resources folder has, from LANGUAGE.lproj
/// there; none for English. Until then all stays English, with points, as programs want it.
void loadLocalizations(const std::string& resources);

/// The folder LANGUAGE.lproj of the language that was loaded; empty for English.
const std::string& localizationFolder();
