#include "shared/CUtils.h"

#include <QApplication>
#include <QtTest>

#include <thread>

namespace {

bool answerOnAnotherThread()
{
    bool answer = false;
    std::thread([&answer] { answer = CUtils::CheckOpenGLSupport(); }).join();
    return answer;
}

} // namespace

class TestOpenGLSupport : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { CUtils::SetOpenGLSupport(std::nullopt); }

    void judgesVersionFlags()
    {
        for (const int flags : {INT_MIN, -1, 0, 31, 65, 127, 128, 1024, 2047})
            QVERIFY2(!CUtils::OpenGLFlagsSuffice(flags), qPrintable(QString::number(flags)));
        for (const int flags : {32, 63, 64, 2048, 4096, 0xffff, INT_MAX})
            QVERIFY2(CUtils::OpenGLFlagsSuffice(flags), qPrintable(QString::number(flags)));
    }

    void isFalseWithoutADisplay()
    {
        QVERIFY(!CUtils::CheckOpenGLSupport());
        QVERIFY(!CUtils::CheckOpenGLSupport());
    }

    void isFalseOnOtherThreads()
    {
        QVERIFY(!answerOnAnotherThread());
        CUtils::SetOpenGLSupport(true);
        QVERIFY(answerOnAnotherThread());
        QVERIFY(CUtils::CheckOpenGLSupport());
    }
};

int main(int argc, char** argv)
{
    qunsetenv("DISPLAY");
    if (CUtils::CheckOpenGLSupport())
        qFatal("OpenGL without an application");
    {
        QCoreApplication application(argc, argv);
        if (CUtils::CheckOpenGLSupport())
            qFatal("OpenGL without a GUI application");
    }
    QApplication application(argc, argv);
    TestOpenGLSupport test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestOpenGLSupport.moc"
