// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/Localization.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <filesystem>

namespace {

/// The table of all texts of a language.
constexpr char kTableFile[] = "Localizable.qm";

std::string folderInUse;
char decimalPoint = '.';

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The user's languages, the preferred first, up to English, which needs no table.
QStringList languagesBeforeEnglish() {
    QStringList languages;
    if (QLocale::system().language() == QLocale::C)
        return languages;
    for (QString language : QLocale::system().uiLanguages()) {
        language.replace('-', '_');
        if (language == QLatin1String("en") || language.startsWith(QLatin1String("en_")))
            break;
        languages << language << language.section('_', 0, 0);
    }
    return languages;
}

/// The application owns what is loaded.
void install(const QString& file, const QString& folder) {
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(file, folder))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

} // namespace

std::string localized(const char* table, const char* text, const char* comment, int count) {
    return QCoreApplication::translate(table, text, comment, count).toStdString();
}

std::string filled(const std::string& text, std::initializer_list<std::string> parts) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t number =
            text[i] == '%' && i + 1 < text.size() ? static_cast<std::size_t>(text[i + 1] - '0') : 0;
        if (number < 1 || number > parts.size()) {
            result += text[i];
            continue;
        }
        result += parts.begin()[number - 1];
        ++i;
    }
    return result;
}

std::string joined(Joint joint, const std::vector<std::string>& parts) {
    static constexpr struct {
        const char *text, *comment;
    } kPatterns[] = {
        QT_TRANSLATE_NOOP3("Joints", "%1 %2", "two sentences"),
        QT_TRANSLATE_NOOP3("Joints", "%1; %2", "two clauses of a sentence"),
        QT_TRANSLATE_NOOP3("Joints", "%1, %2", "two items of a list"),
        QT_TRANSLATE_NOOP3("Joints", "%1 (%2)", "what something is, and a note on it"),
        QT_TRANSLATE_NOOP3("Joints", "%1. %2", "a value, and a sentence on it"),
    };

    const auto& [pattern, comment] = kPatterns[static_cast<int>(joint)];
    std::string text;
    for (const std::string& part : parts)
        if (!part.empty())
            text =
                text.empty() ? part : filled(localized("Joints", pattern, comment), {text, part});
    return text;
}

std::string localizedNumbers(std::string text) {
    for (std::size_t i = 1; i + 1 < text.size(); ++i)
        if (text[i] == '.' && isDigit(text[i - 1]) && isDigit(text[i + 1]))
            text[i] = decimalPoint;
    return text;
}

void loadLocalizations(const std::string& resources) {
    const QString point = QLocale::system().decimalPoint();
    decimalPoint = point == QLatin1String(",") ? ',' : '.';
    for (const QString& language : languagesBeforeEnglish()) {
        const std::string folder = resources + '/' + language.toStdString() + ".lproj";
        if (std::error_code error; !std::filesystem::exists(folder + '/' + kTableFile, error))
            continue;
        folderInUse = folder;
        // Qt's own texts, such as those of file dialogues. Ours have precedence.
        install("qtbase_" + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        install(QLatin1String(kTableFile), QString::fromStdString(folder));
        return;
    }
}

const std::string& localizationFolder() {
    return folderInUse;
}
