#include <QAbstractTableModel>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QTableView>

// The same 35 widgets and the same menus, made with Qt alone: what the toolkit itself takes to
// start.

namespace {

void AddMenus(QMenuBar& bar) {
  bar.addMenu("&File")->addAction("&Quit")->setShortcut(QKeySequence("Ctrl+Q"));
  QMenu& edit = *bar.addMenu("&Edit");
  const std::pair<const char*, const char*> entries[] = {
      {"&Undo", "Ctrl+Z"},  {"", ""},        {"Cu&t", "Ctrl+X"}, {"&Copy", "Ctrl+C"},
      {"&Paste", "Ctrl+V"}, {"&Delete", ""}, {"", ""},           {"Select &All", "Ctrl+A"}};
  for (const auto& [text, shortcut] : entries) {
    if (*text == '\0') {
      edit.addSeparator();
      continue;
    }
    QAction& action = *edit.addAction(text);
    action.setShortcut(QKeySequence(shortcut));
    action.setEnabled(false);
  }
}

void AddLabel(QWidget* content, QRect frame, const char* text, bool visible = true) {
  auto* const label = new QLabel(text, content);
  label->setGeometry(frame);
  label->setVisible(visible);
}

void AddBox(QWidget* content, QRect frame, const QString& text) {
  auto* const box = new QCheckBox(text, content);
  box->setGeometry(frame);
  box->setToolTip("Select which pitch classes must appear in the scale.");
}

class Empty final : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;
  int rowCount(const QModelIndex&) const override { return 0; }
  int columnCount(const QModelIndex&) const override { return 3; }
  QVariant data(const QModelIndex&, int) const override { return {}; }
};

void AddList(QWidget* content, QRect frame) {
  auto* const list = new QTableView(content);
  list->setGeometry(frame);
  list->horizontalHeader()->hide();
  list->verticalHeader()->hide();
  list->setShowGrid(false);
  list->setSelectionBehavior(QTableView::SelectRows);
  list->setModel(new Empty(list));
}

}  // namespace

int main() {
  int count = 1;
  char name[] = "bare_window";
  char* arguments[] = {name, nullptr};
  const QApplication application(count, arguments);
  const QStringList names = {"C",       "C# / Db", "D",       "D# / Eb", "E",       "F",
                             "F# / Gb", "G",       "G# / Ab", "A",       "A# / Bb", "B"};
  QMainWindow window;
  auto* const content = new QWidget(&window);
  window.setCentralWidget(content);
  AddMenus(*window.menuBar());
  for (int i = 0; i < 12; ++i) {
    AddBox(content, {30, 188 + 30 * i, 100, 25}, names[i]);
    AddLabel(content, {15, 188 + 30 * i, 15, 20}, "*", false);
  }
  AddBox(content, {30, 82, 158, 20}, "Include Other Roots");
  AddBox(content, {30, 114, 158, 20}, "Roots in List Only");
  AddLabel(content, {30, 20, 100, 20}, "Root Note");
  AddLabel(content, {30, 158, 100, 20}, "Notes in Scale");
  AddLabel(content, {215, 20, 100, 20}, "Exact Match");
  AddLabel(content, {215, 178, 141, 20}, "Containing All Notes");
  AddLabel(content, {30, 563, 121, 20}, " ", false);
  AddLabel(content, {208, 563, 100, 20}, " ", false);
  AddList(content, {208, 52, 387, 95});
  AddList(content, {208, 210, 387, 249});
  auto* const roots = new QComboBox(content);
  roots->setGeometry(30, 50, 80, 20);
  roots->addItems(names);
  window.resize(615, 590);
  window.show();
  return QApplication::exec();
}
