/// \file
/// Makes the widget with the plugin whose file is the argument. Its status says what failed.
#include <QApplication>
#include <QIcon>
#include <QPluginLoader>
#include <QWidget>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <cstdio>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QPluginLoader loader(QString::fromLocal8Bit(argv[1]));
    auto* plugin = qobject_cast<QDesignerCustomWidgetInterface*>(loader.instance());
    if (plugin == nullptr) {
        std::fprintf(stderr, "%s\n", qPrintable(loader.errorString()));
        return 2;
    }
    if (plugin->name() != QLatin1String("LumtexListView") || plugin->icon().isNull())
        return 3;
    QWidget form;
    QWidget* list = plugin->createWidget(&form);
    if (list == nullptr || !list->setProperty("GridLines", true) || !list->property("GridLines").toBool())
        return 4;
    return QMetaObject::invokeMethod(list, "ColumnsAdd", Q_ARG(QVariant, QStringLiteral("City"))) &&
                   list->property("ColumnsCount").toInt() == 1
               ? 0
               : 5;
}
