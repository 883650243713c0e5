#pragma once

#include <QThread>

#include <cstdio>

/// Reads lines in the background, so that dialogs stay alive while the next command is still being typed or sent.
class LineReader : public QThread {
    Q_OBJECT

public:
    /// Reads from @p file until its end. Does not close it.
    explicit LineReader(std::FILE* file, QObject* parent = nullptr);
    ~LineReader() override;

Q_SIGNALS:
    void lineRead(const QByteArray& line);

protected:
    void run() override;

private:
    std::FILE* const file;
};
