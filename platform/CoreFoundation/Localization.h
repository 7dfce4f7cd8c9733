// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

// Stands for NSLocalizedString and a bundle's string tables. The table is the first argument,
// because the tools that collect texts want it there. Texts are UTF-8.

/// Marks a text in a constant table. `localized` translates it later.
#define LOCALIZABLE(table, text) text

/// Marks one with a form for each plural.
#define LOCALIZABLE_COUNT(table, text) text

/// The text in the user's language, or unchanged. `comment` is for translators and distinguishes
/// equal texts. A `count` of 0 or more replaces %n and selects the plural.
std::string localized(const char* table, const char* text, const char* comment = nullptr,
                      int count = -1);

/// The text with `parts` in place of %1, %2 and so on, at most nine.
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

/// The text with the language's decimal sign in place of each point between two digits.
std::string localizedNumbers(std::string text);

/// Loads the user's first language that the bundle's Resources folder has, from its LANGUAGE.lproj.
/// English needs none. Before this call everything is English, with decimal points, as programs
/// expect.
void loadLocalizations(const std::string& resources);

/// The folder LANGUAGE.lproj of the loaded language. Empty for English.
const std::string& localizationFolder();
