// Uses every class that the library exports, as a program outside of it does.

#include <EveryClass.h>

#include <objects/TGraphicsViaItem.h>

#include <QGuiApplication>

#include <cstdio>
#include <typeinfo>

/** Ends an object of exactly this class: what the library did not compile once would be compiled here. */
template <class Class>
const char* Use(Class* object)
{
    if (object) {
        object->Class::~Class();
    }
    return typeid(Class).name();
}

#define USE(Class)                                                                                                     \
    if (!*Use<Class>(nullptr)) {                                                                                       \
        return 1;                                                                                                      \
    }

/** Commands of the library and of this program know each other as of one class. */
static bool CommandsMerge()
{
    TGraphicsViaItem via;
    const QList<TGraphicsItem*> vias{&via};
    TCmdViaDiam first(vias, 0.5);
    TCmdViaDiam second(vias, 0.6);
    TCmdViaDrill other(vias, 0.3);
    return first.mergeWith(&second) && !first.mergeWith(&other) && CommandKind::Key(first) == QLatin1String("ViaDiam");
}

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    EVERY_CLASS(USE)
    if (!CommandsMerge()) {
        std::puts("commands do not merge");
        return 1;
    }
    return 0;
}
