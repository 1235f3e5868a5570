#include <benchmark/benchmark.h>

#include <QAbstractTableModel>
#include <QApplication>
#include <QCheckBox>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "libraries.h"
#include "program.h"
#include "toolkit/qt/native_window.h"
#include "toolkit/qt/qt_toolkit.h"

// From a click to the painted lists, for the largest answer: no note ticked, all roots. Beside it a
// bare table model of Qt's with as many rows, reset and painted in a view of the same size.

namespace {

class Toolkit final : public toolkit::qt::QtToolkit {
 public:
  Toolkit() : QtToolkit("Benchmark", "benchmark") {}
};
using Program = bench::Program<Toolkit>;

/// Counts the paintings of a view.
class Paintings final : public QObject {
 public:
  explicit Paintings(QTableView& view) { view.viewport()->installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count_;
    return false;
  }
  /// Runs events until the view has been painted anew, and for the last time.
  void Await() {
    for (const int before = count_; count_ == before;) QApplication::processEvents();
    for (int before = -1; std::exchange(before, count_) != count_;) QApplication::processEvents();
  }

 private:
  int count_ = 0;
};

void ClickOn(QWidget& box) {
  QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
}

template <class Widget>
Widget& Find(const char* name) {
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (auto* const widget = window->findChild<Widget*>(QLatin1String(name))) return *widget;
  }
  throw std::runtime_error(std::string("no widget ") + name);
}

/// The program with a library of that many scales and the largest answer in its lower list.
class Filled {
 public:
  explicit Filled(const benchmark::State& state)
      : program_(bench::LibraryOf(static_cast<int>(state.range(0)))) {
    Click();
  }
  /// Other roots, or no longer; the lists are painted when it returns.
  void Click() {
    ClickOn(box_);
    paintings_.Await();
  }
  QTableView& View() { return view_; }
  Paintings& Painted() { return paintings_; }

 private:
  Program program_;
  QWidget& box_ = Find<QWidget>("cbOther");
  QTableView& view_ = Find<QTableView>("lbContaining");
  Paintings paintings_{view_};
};

void Screen(benchmark::State& state) {
  Filled window(state);
  for (auto _ : state) {
    state.PauseTiming();
    window.Click();
    state.ResumeTiming();
    window.Click();
  }
  state.counters["rows"] = window.View().model()->rowCount();
}

/// A model that shows texts which lie ready.
class BareModel final : public QAbstractTableModel {
 public:
  using Texts = std::vector<QString>;

  int rowCount(const QModelIndex& = {}) const override {
    return texts_ == nullptr ? 0 : static_cast<int>(texts_->size()) / 3;
  }
  int columnCount(const QModelIndex& = {}) const override { return 3; }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole) return {};
    return (*texts_)[static_cast<std::size_t>(index.row() * 3 + index.column())];
  }
  /// Shows these texts, or none.
  void Reset(const Texts* texts) {
    beginResetModel();
    texts_ = texts;
    endResetModel();
  }

 private:
  const Texts* texts_ = nullptr;
};

/// A window with a box, of which a click puts texts into a table, or takes them away.
class BareWindow {
 public:
  BareWindow(const QTableView& like, BareModel::Texts texts)
      : texts_(std::move(texts)), box_(&window_), view_(&window_) {
    window_.resize(like.window()->size());
    box_.setGeometry(Find<QWidget>("cbOther").geometry());
    view_.setGeometry(like.geometry());
    view_.setModel(&model_);
    view_.setShowGrid(false);
    view_.setWordWrap(false);
    view_.horizontalHeader()->hide();
    view_.verticalHeader()->hide();
    view_.verticalHeader()->setDefaultSectionSize(like.verticalHeader()->defaultSectionSize());
    for (int column = 0; column < 3; ++column) {
      view_.setColumnWidth(column, like.columnWidth(column));
    }
    QObject::connect(&box_, &QCheckBox::clicked, &window_,
                     [this](bool checked) { model_.Reset(checked ? &texts_ : nullptr); });
    window_.show();
    paintings_.Await();
  }
  void Click() {
    ClickOn(box_);
    paintings_.Await();
  }
  int Rows() const { return model_.rowCount(); }

 private:
  BareModel::Texts texts_;
  BareModel model_;
  QWidget window_;
  QCheckBox box_;
  QTableView view_;
  Paintings paintings_{view_};
};

void ScreenBare(benchmark::State& state) {
  Filled filled(state);
  const QTableView& ours = filled.View();
  BareModel::Texts texts;
  for (int row = 0; row < ours.model()->rowCount(); ++row) {
    for (int column = 0; column < 3; ++column) {
      texts.push_back(ours.model()->index(row, column).data().toString());
    }
  }
  ours.window()->hide();
  BareWindow window(ours, std::move(texts));
  for (auto _ : state) {
    window.Click();
    state.PauseTiming();
    state.counters["rows"] = window.Rows();
    window.Click();
    state.ResumeTiming();
  }
}

void Scroll(benchmark::State& state) {
  Filled window(state);
  QScrollBar& bar = *window.View().verticalScrollBar();
  int step = 0;
  for (auto _ : state) {
    bar.setValue(static_cast<int>(std::int64_t{++step} * 104729 % bar.maximum()));
    window.Painted().Await();
  }
  state.counters["rows"] = window.View().model()->rowCount();
}

BENCHMARK(Screen)->Arg(0)->Arg(5000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(ScreenBare)->Arg(0)->Arg(5000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(Scroll)->Arg(0)->Arg(50000)->Unit(benchmark::kMillisecond);

}  // namespace
