#include "LineReader.h"

#include <QFile>

LineReader::LineReader(std::FILE* inputFile, QObject* parent) : QThread(parent), file(inputFile) { }

LineReader::~LineReader()
{
    // A read that still waits for input nobody needs any more cannot be ended otherwise.
    if (isRunning())
        terminate();
    wait();
}

void LineReader::run()
{
    QFile input;
    if (!input.open(file, QIODevice::ReadOnly))
        return;
    for (QByteArray line = input.readLine(); !line.isEmpty(); line = input.readLine())
        Q_EMIT lineRead(line);
}
