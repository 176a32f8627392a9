#include "storage/ChangeJournal.h"

#include "storage/DurableFile.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr QByteArrayView kSignature = "PWKJRNL1";
constexpr qsizetype kChecksumSize = 8;
constexpr qsizetype kRecordHeaderSize = 4 + kChecksumSize;
// Far beyond any month; a length past it is damage, not a record.
constexpr quint32 kMaxPayload = 256u << 20;

QByteArray checksum(QByteArrayView payload)
{
    return QCryptographicHash::hash(payload, QCryptographicHash::Sha256).left(kChecksumSize);
}

template <typename T>
void put(QByteArray &out, T value)
{
    char bytes[sizeof(T)];
    qToLittleEndian(value, bytes);
    out.append(bytes, sizeof(T));
}

QByteArray encodeRecord(const QList<ChangeJournal::Month> &months,
                        const QList<ChangeJournal::File> &files)
{
    QByteArray payload;
    put<quint16>(payload, quint16(months.size()));
    for (const ChangeJournal::Month &month : months) {
        put<qint32>(payload, month.year);
        put<qint32>(payload, month.month);
        put<quint32>(payload, quint32(month.content.size()));
        payload.append(month.content);
    }
    // Written only when there are files, so that a record of months alone
    // is what it always was.
    if (!files.isEmpty()) {
        put<quint16>(payload, quint16(files.size()));
        for (const ChangeJournal::File &file : files) {
            const QByteArray name = file.name.toUtf8();
            put<quint16>(payload, quint16(name.size()));
            payload.append(name);
            put<quint32>(payload, quint32(file.content.size()));
            payload.append(file.content);
        }
    }
    QByteArray record;
    record.reserve(kRecordHeaderSize + payload.size());
    put<quint32>(record, quint32(payload.size()));
    record.append(checksum(payload));
    record.append(payload);
    return record;
}

// Reads little-endian values off the front of a byte range, refusing to run
// past its end.
class Cursor
{
public:
    explicit Cursor(QByteArrayView bytes) : m_bytes(bytes) {}

    template <typename T>
    bool take(T *value)
    {
        if (m_bytes.size() < qsizetype(sizeof(T)))
            return false;
        *value = qFromLittleEndian<T>(m_bytes.data());
        m_bytes = m_bytes.sliced(sizeof(T));
        return true;
    }
    bool take(qsizetype size, QByteArrayView *out)
    {
        if (size < 0 || m_bytes.size() < size)
            return false;
        *out = m_bytes.first(size);
        m_bytes = m_bytes.sliced(size);
        return true;
    }
    bool atEnd() const { return m_bytes.isEmpty(); }

private:
    QByteArrayView m_bytes;
};

// The months and files of one checked payload; false if it does not parse
// whole.
bool decodePayload(QByteArrayView payload, QList<ChangeJournal::Month> *months,
                   QList<ChangeJournal::File> *files)
{
    Cursor cursor(payload);
    quint16 count = 0;
    if (!cursor.take(&count))
        return false;
    for (quint16 i = 0; i < count; ++i) {
        qint32 year = 0;
        qint32 month = 0;
        quint32 size = 0;
        QByteArrayView content;
        if (!cursor.take(&year) || !cursor.take(&month) || !cursor.take(&size)
            || !cursor.take(qsizetype(size), &content))
            return false;
        months->append({year, month, content.toByteArray()});
    }
    if (cursor.atEnd())
        return true;
    if (!cursor.take(&count))
        return false;
    for (quint16 i = 0; i < count; ++i) {
        quint16 nameSize = 0;
        QByteArrayView name;
        quint32 size = 0;
        QByteArrayView content;
        if (!cursor.take(&nameSize) || !cursor.take(qsizetype(nameSize), &name)
            || !cursor.take(&size) || !cursor.take(qsizetype(size), &content))
            return false;
        files->append({QString::fromUtf8(name), content.toByteArray()});
    }
    return cursor.atEnd();
}

QString systemError(int number)
{
    return QString::fromLocal8Bit(std::strerror(number));
}

bool writeAll(int fd, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(fd, bytes.data(), size_t(bytes.size()));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes = bytes.sliced(written);
    }
    return true;
}

} // namespace

ChangeJournal::ChangeJournal(const QString &path)
    : m_path(path)
{
}

ChangeJournal::~ChangeJournal()
{
    close();
}

bool ChangeJournal::open(QString *error)
{
    if (m_fd >= 0)
        return true;
    m_fd = ::open(QFile::encodeName(m_path).constData(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC,
                  0600);
    if (m_fd >= 0)
        return true;
    if (error)
        *error = tr("%1 could not be opened: %2").arg(m_path, systemError(errno));
    return false;
}

void ChangeJournal::close()
{
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
}

bool ChangeJournal::append(const QList<Month> &months, QString *error, const QList<File> &files)
{
    if (!open(error))
        return false;
    const off_t before = ::lseek(m_fd, 0, SEEK_END);
    QByteArray bytes;
    if (before == 0)
        bytes.append(kSignature);
    bytes.append(encodeRecord(months, files));
    if (before >= 0 && writeAll(m_fd, bytes) && ::fdatasync(m_fd) == 0) {
        // A new file's name must reach the disk as well as its content.
        return before > 0 || DurableFile::syncFolder(QFileInfo(m_path).absolutePath(), error);
    }
    const int cause = errno;
    // Take back what part of the record went out, so that later records are
    // not hidden behind a torn one.
    if (before < 0 || ::ftruncate(m_fd, before) != 0)
        close();
    if (error)
        *error = tr("%1 could not be written: %2").arg(m_path, systemError(cause));
    return false;
}

bool ChangeJournal::remove(QString *error)
{
    close();
    if (::unlink(QFile::encodeName(m_path).constData()) != 0 && errno != ENOENT) {
        if (error)
            *error = tr("%1 could not be removed: %2").arg(m_path, systemError(errno));
        return false;
    }
    return DurableFile::syncFolder(QFileInfo(m_path).absolutePath(), error);
}

ChangeJournal::Contents ChangeJournal::read(const QByteArray &bytes)
{
    Contents contents;
    if (bytes.isEmpty())
        return contents;
    if (!bytes.startsWith(kSignature)) {
        // The signature itself cut short is a journal that never got a record.
        if (kSignature.startsWith(bytes))
            contents.torn = true;
        else
            contents.foreign = true;
        return contents;
    }
    Cursor cursor(QByteArrayView(bytes).sliced(kSignature.size()));
    while (!cursor.atEnd()) {
        quint32 size = 0;
        QByteArrayView sum;
        QByteArrayView payload;
        QList<Month> months;
        QList<File> files;
        if (!cursor.take(&size) || size > kMaxPayload || !cursor.take(kChecksumSize, &sum)
            || !cursor.take(qsizetype(size), &payload) || checksum(payload) != sum
            || !decodePayload(payload, &months, &files)) {
            contents.torn = true;
            break;
        }
        for (Month &month : months) {
            contents.months.removeIf([&month](const Month &earlier) {
                return earlier.year == month.year && earlier.month == month.month;
            });
            contents.months.append(std::move(month));
        }
        for (File &file : files) {
            contents.files.removeIf(
                [&file](const File &earlier) { return earlier.name == file.name; });
            contents.files.append(std::move(file));
        }
    }
    return contents;
}

ChangeJournal::Contents ChangeJournal::readFile(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (file.exists() && error)
            *error = tr("%1 could not be read: %2").arg(path, file.errorString());
        return {};
    }
    return read(file.readAll());
}
