#pragma once

#include <QMetaMethod>
#include <QStringList>

/// The signals and slots that a class adds to those of its bases, in the order of its meta object.
template <class Object>
QStringList methodsOf()
{
    const QMetaObject& type = Object::staticMetaObject;
    QStringList methods;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i)
        methods << (type.method(i).methodType() == QMetaMethod::Signal ? "signal " : "slot ") +
                       QString(type.method(i).methodSignature());
    return methods;
}
