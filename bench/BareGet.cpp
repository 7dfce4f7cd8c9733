// SPDX-License-Identifier: MIT
// The smallest program that is linked like the pane, parses the settings' file and prints one of
// its values.

#include <QFile>
#include <QXmlStreamReader>

#include <cstdio>

int main(int argc, char** argv) {
    QFile file(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    if (!file.open(QIODevice::ReadOnly))
        return 1;
    QXmlStreamReader reader(&file);
    QString last;
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::Characters && !reader.isWhitespace())
            last = reader.text().toString();
    std::puts(qPrintable(last));
    return reader.hasError() ? 1 : 0;
}
