#include "host/desktop/preview/PagePictures.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace host::desktop;

/// A script stands in for the program that draws.
class TestPagePictures : public QObject
{
    Q_OBJECT

private slots:
    void drawsWhatIsAskedFor()
    {
        PagePictures pictures(drawer(picture(1, 2, 2, 16), "1234567812345678"));
        QSignalSpy came(&pictures, &PagePictures::came);
        pictures.setDocument("/d/\xff.pdf", "secret", nullptr);
        QVERIFY(pictures.of(1, 0).isNull());
        QVERIFY(pictures.of(1, 100).isNull());
        QTRY_COMPARE(came.size(), 1);
        QCOMPARE(pictures.of(1, 100).size(), QSize(2, 2));
        const QList<QByteArray> heard = lines();
        QCOMPARE(heard.at(0), QByteArray("{\"fileBytes\":\"" + QByteArray("/d/\xff.pdf").toBase64() +
                                         "\",\"password\":\"secret\"}"));
        QCOMPARE(heard.at(1), QByteArray("{\"height\":384,\"id\":1,\"page\":1,\"width\":128}"));
        pictures.setDocument("/d/other.pdf", {}, nullptr);
        QVERIFY(pictures.of(1, 100).isNull());
    }

    void believesNothing_data()
    {
        QTest::addColumn<QByteArray>("says");
        QTest::newRow("other bytes") << picture(1, 2, 2, 15);
        QTest::newRow("too many pixels") << picture(1, 4000, 4000, 64000000);
        QTest::newRow("another page") << picture(7, 2, 2, 16);
        QTest::newRow("nonsense") << QByteArray("nonsense");
        QTest::newRow("nothing") << QByteArray();
    }
    void believesNothing()
    {
        QFETCH(QByteArray, says);
        PagePictures pictures(drawer(says, "1234567812345678"));
        QSignalSpy came(&pictures, &PagePictures::came);
        pictures.setDocument("/d/a.pdf", {}, nullptr);
        pictures.of(1, 100);
        QTRY_VERIFY(lines().size() > 1);
        QTest::qWait(50);
        QVERIFY(pictures.of(1, 100).isNull());
        QCOMPARE(came.size(), 0);
    }

    void doesWithoutTheProgram()
    {
        for (const char* program : {"", "/nowhere"}) {
            PagePictures pictures(program);
            pictures.setDocument("/d/a.pdf", {}, nullptr);
            QVERIFY(pictures.of(1, 100).isNull());
            QTest::qWait(200);
            QVERIFY(pictures.of(1, 500).isNull());
        }
    }

private:
    static QByteArray picture(int id, int width, int height, int bytes)
    {
        return QString("{\"event\":\"page\",\"id\":%1,\"width\":%2,\"height\":%3,\"bytes\":%4}")
            .arg(id)
            .arg(width)
            .arg(height)
            .arg(bytes)
            .toLatin1();
    }
    /// Keeps two lines of what it is told, and answers.
    QString drawer(const QByteArray& says, const QByteArray& bytes)
    {
        QString path = m_folder.filePath("drawer");
        QFile::remove(path);
        QFile::remove(m_folder.filePath("heard"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("no script");
        file.write("#!/bin/sh\nread -r one\necho '{\"event\":\"document\",\"pages\":8}'\nread -r two\n"
                   "printf '%s\\n%s\\n' \"$one\" \"$two\" > '" +
                   m_folder.filePath("heard").toUtf8() + "'\n" +
                   (says.isEmpty() ? "" : "echo '" + says + "'\nprintf " + bytes + "\n") + "read -r three\n");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }
    QList<QByteArray> lines() const
    {
        QFile file(m_folder.filePath("heard"));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().split('\n') : QList<QByteArray>();
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestPagePictures)
#include "TestPagePictures.moc"
