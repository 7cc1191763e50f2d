#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QSplitter>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;

// The least that a window with words is: menus, tools, a list and pages as the program has them, and nothing behind
// them. The first word costs more than the empty window, and no program with words starts without it.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    for (const QString& name : {u"&Datei"_s, u"&Bearbeiten"_s, u"&Ansicht"_s, u"&Extras"_s, u"&Hilfe"_s}) {
        window.menuBar()->addMenu(name)->addAction(name);
    }
    QToolBar* tools = window.addToolBar(u"Werkzeuge"_s);
    for (const QString& name : {u"Kontoauszug importieren"_s, u"Umsätze abrufen"_s, u"Neuer Eintrag"_s, u"Suchen"_s}) {
        tools->addAction(name);
    }
    auto* accounts = new QTreeWidget;
    accounts->setColumnCount(3);
    for (int i = 0; i < 7; ++i) {
        new QTreeWidgetItem(accounts, {u"Girokonto"_s, u"1.234,56 €"_s, u"3"_s});
    }
    auto* pages = new QTabWidget;
    for (const QString& name : {u"Übersicht"_s, u"Buchungen"_s, u"Kontoauszüge"_s, u"Auswertung"_s}) {
        pages->addTab(new QLabel(u"Kontostände heute\n12.345,67 €\nZu erledigen\nMiete"_s), name);
    }
    auto* both = new QSplitter;
    both->addWidget(accounts);
    both->addWidget(pages);
    window.setCentralWidget(both);
    window.resize(1230, 700);
    window.show();
    return QApplication::exec();
}
