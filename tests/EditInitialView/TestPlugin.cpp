#include "shared/CActionInterface.h"

#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>
#include <QProcess>
#include <QtTest>

#include <dlfcn.h>

/// The module as the host meets it: loaded at run time, known by its entry points and the interface.
class TestPlugin : public QObject
{
    Q_OBJECT

private slots:
    // First, since Qt keeps a plug-in that it has once loaded.
    void canBeUnloaded()
    {
        void* module = dlopen(PLUGIN_FILE, RTLD_LAZY);
        QVERIFY2(module != nullptr, dlerror());
        QCOMPARE(dlclose(module), 0);
        QVERIFY(dlopen(PLUGIN_FILE, RTLD_LAZY | RTLD_NOLOAD) == nullptr);
    }

    void describesItselfBeforeItIsLoaded()
    {
        QPluginLoader loader(PLUGIN_FILE);
        const QJsonObject metaData = loader.metaData();
        QCOMPARE(metaData["IID"].toString(), QString("org.telvar.quintar.editinitialview"));
        QCOMPARE(metaData["className"].toString(), QString("CEditInitialView"));
        QCOMPARE(metaData["version"].toInt(), QT_VERSION & 0xffff00);
        QCOMPARE(metaData["debug"], QJsonValue(false));
        QCOMPARE(metaData["MetaData"].toObject(), QJsonObject());
        QVERIFY(!loader.isLoaded());
    }

    void exportsItsTwoEntryPointsOnly()
    {
        QProcess nm;
        nm.start("nm", {"-D", "--defined-only", "--format=posix", PLUGIN_FILE});
        QVERIFY2(nm.waitForFinished(), qPrintable(nm.errorString()));
        QStringList names;
        for (const QByteArray& line : nm.readAllStandardOutput().split('\n')) {
            if (!line.isEmpty())
                names.append(line.left(line.indexOf(' ')));
        }
        names.sort();
        QCOMPARE(names, (QStringList{"qt_plugin_instance", "qt_plugin_query_metadata"}));
    }

    void keepsOneRootObjectWhileItExists()
    {
        using Instance = QObject* (*)();
        QLibrary module(PLUGIN_FILE);
        const auto instance = reinterpret_cast<Instance>(module.resolve("qt_plugin_instance"));
        QVERIFY(instance != nullptr);
        QPointer<QObject> first = instance();
        QVERIFY(first);
        QVERIFY(first->parent() == nullptr);
        QCOMPARE(instance(), first.data());
        delete first.data();
        QPointer<QObject> second = instance();
        QVERIFY(second);
        QVERIFY(first.isNull());
        QCOMPARE(instance(), second.data());
        delete second.data();
        QVERIFY(module.unload());
    }

    void castsToTheInterfaceAndToNothingElse()
    {
        QPluginLoader loader(PLUGIN_FILE);
        QObject* root = loader.instance();
        QVERIFY2(root != nullptr, qPrintable(loader.errorString()));
        auto* action = qobject_cast<CActionInterface*>(root);
        QVERIFY(action != nullptr);
        QCOMPARE(root->metaObject()->className(), "CEditInitialView");
        QCOMPARE(root->metaObject()->methodCount(), QObject::staticMetaObject.methodCount());
        QCOMPARE(root->metaObject()->propertyCount(), QObject::staticMetaObject.propertyCount());

        QCOMPARE(root->qt_metacast("CActionInterface"), static_cast<void*>(action));
        QCOMPARE(root->qt_metacast("com.Telvar.Quintar.ActionInterface_1.0"), static_cast<void*>(action));
        QCOMPARE(root->qt_metacast("CEditInitialView"), static_cast<void*>(root));
        QCOMPARE(root->qt_metacast("QObject"), static_cast<void*>(root));
        QVERIFY(root->qt_metacast(nullptr) == nullptr);
        QVERIFY(root->qt_metacast("QWidget") == nullptr);
        // The interface is the second base, behind the object's own part.
        QVERIFY(static_cast<void*>(action) > static_cast<void*>(root));
        QVERIFY(loader.unload());
    }

    void describesTheAction()
    {
        QPluginLoader loader(PLUGIN_FILE);
        auto* action = qobject_cast<CActionInterface*>(loader.instance());
        QVERIFY(action != nullptr);
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(action->GetActionName(), QString("Initial View"));
            QCOMPARE(action->GetDisplayName(), QString("Initial View"));
            QCOMPARE(action->GetActionHelp(), QString("Action_EditInitialView.html"));
            QCOMPARE(action->GetGroupName(), QString("Document Properties"));
            QCOMPARE(action->GetActionFlags(), 271);
            QCOMPARE(action->GetDefaultIcon(), QString("Action_IntialView.png#Action_IntialView_Selected.png#"
                                                       "Action_IntialView_Disabled.png"));
        }
        // The brackets read nothing of what they get.
        QCOMPARE(action->PreSequenceProc(nullptr), 1);
        QCOMPARE(action->PostSequenceProc(nullptr), 1);
        QVERIFY(loader.unload());
    }
};

QTEST_GUILESS_MAIN(TestPlugin)
#include "TestPlugin.moc"
