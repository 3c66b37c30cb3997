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
    // First, since the answer of the thread of the widgets is kept.
    void isFalseOnOtherThreads() { QVERIFY(!answerOnAnotherThread()); }

    void isFalseWithoutADisplay()
    {
        QVERIFY(!CUtils::CheckOpenGLSupport());
        QVERIFY(!CUtils::CheckOpenGLSupport());
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
