#include "funkcioj.h"

#include <QTabWidget>

QWidget* praulo(const QObject* objekto, const char* klaso)
{
    for (QObject* o = objekto ? objekto->parent() : nullptr; o; o = o->parent()) {
        if (qstrcmp(o->metaObject()->className(), klaso) == 0)
            return qobject_cast<QWidget*>(o);
    }
    return nullptr;
}

QTabWidget* lecionLangetoj(const QWidget* pagho)
{
    return pagho ? pagho->findChildren<QTabWidget*>().value(0) : nullptr;
}
