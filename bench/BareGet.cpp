// SPDX-License-Identifier: MIT
// The least program that is linked as the pane's is, parses the settings' file and prints a value
// of it.

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
