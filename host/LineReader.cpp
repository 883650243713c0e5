#include "LineReader.h"

#include <cstdio>

LineReader::LineReader(const QString& path, QObject* parent) : QThread(parent), input(path) { }

LineReader::~LineReader()
{
    // A read that waits for input which nobody needs any more can be ended in no other way.
    if (isRunning())
        terminate();
    wait();
}

bool LineReader::open()
{
    if (input.fileName() == QLatin1String("-"))
        return input.open(stdin, QIODevice::ReadOnly);
    return input.open(QIODevice::ReadOnly);
}

void LineReader::run()
{
    for (QByteArray line = input.readLine(); !line.isEmpty(); line = input.readLine())
        Q_EMIT lineRead(line);
}
