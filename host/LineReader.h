#pragma once

#include <QFile>
#include <QThread>

/// Reads lines in the background, so that dialogs stay alive while the next command is still being typed or sent.
class LineReader : public QThread {
    Q_OBJECT

public:
    /// Reads from the file at @p path, or from standard input if that is "-".
    explicit LineReader(const QString& path, QObject* parent = nullptr);
    ~LineReader() override;

    /// Opens the input; to be called before start(). False if it cannot be read.
    bool open();

Q_SIGNALS:
    void lineRead(const QByteArray& line);

protected:
    void run() override;

private:
    QFile input;
};
