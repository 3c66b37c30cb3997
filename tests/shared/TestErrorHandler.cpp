#include "shared/CErrorHandler.h"
#include "shared/CatchAllProtocol.h"

#include <QtTest>

#include <stdexcept>

namespace {

QString lastRecord;

} // namespace

// Takes the place of the library's log entry point.
void StoreErrorToLog(const char* text)
{
    lastRecord = QString::fromUtf8(text);
}

class TestErrorHandler : public QObject
{
    Q_OBJECT

private slots:
    void answersUnknownErrorWhereThereIsNone()
    {
        CErrorHandler store;
        QCOMPARE(store.GetCount(), 0L);
        QCOMPARE(store.GetLast(), QString("Unknown error"));
        store.StoreError("first");
        store.StoreError("second");
        QCOMPARE(store.GetCount(), 2L);
        QCOMPARE(store.GetAt(0), QString("first"));
        QCOMPARE(store.GetAt(1), QString("second"));
        QCOMPARE(store.GetLast(), QString("second"));
        for (const long index : {-1L, 2L, LONG_MAX, LONG_MIN, 4294967296L})
            QCOMPARE(store.GetAt(index), QString("Unknown error"));
    }

    void formatsAsPrintfDoes()
    {
        CErrorHandler store;
        store.StoreError("page %d of %s", 3, "h\xc3\xb4tel.pdf");
        QCOMPARE(store.GetLast(), QString::fromUtf8("page 3 of h\xc3\xb4tel.pdf"));
        store.StoreError(QString::fromUtf8("gr\xc3\xb6\xc3\x9f"
                                           "er"));
        QCOMPARE(store.GetLast(), QString::fromUtf8("gr\xc3\xb6\xc3\x9f"
                                                    "er"));
    }

    void mirrorsMessagesButNotTheirRemoval()
    {
        QList<QString> mirror;
        {
            CErrorHandler store;
            store.StoreError("before");
            store.m_pMirror = &mirror;
            store.StoreError("after");
            store.ClearAll();
            QCOMPARE(store.GetCount(), 0L);
        }
        QCOMPARE(mirror, QList<QString>{"after"});
    }

    void recordsWhateverIsThrown()
    {
        const auto throwing = [] { throw std::runtime_error("no"); };
        QVERIFY(!runCatchAll("folder/file.cpp", "WorkProc", 42, throwing));
        QCOMPARE(lastRecord, QString("==============================\nException handled: system\n"
                                     "File: folder/file.cpp\nFunction: WorkProc\nLine: 42\n"));
        QVERIFY(!runCatchAll("f", "g", 1, [] { throw 7; }));
        lastRecord.clear();
        QVERIFY(runCatchAll("f", "g", 1, [] {}));
        QVERIFY(lastRecord.isEmpty());
    }

    void keepsALongPathWithinTheRecord()
    {
        const QByteArray path(5000, 'x');
        QVERIFY(!runCatchAll(path.constData(), "WorkProc", 1, [] { throw 1; }));
        QCOMPARE(lastRecord.size(), 1023);
    }
};

QTEST_GUILESS_MAIN(TestErrorHandler)
#include "TestErrorHandler.moc"
