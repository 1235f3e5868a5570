// A program on the page's toolkit that does what the one that ships never does: it shows what it
// hears of the system's appearance, changes its controls while it runs, fails with what is no
// failure of the framework's, and quits.
#include "framework/application/runtime.h"
#include "framework/controls/check_box.h"
#include "framework/controls/label.h"
#include "framework/controls/listbox.h"
#include "framework/controls/popup_menu.h"
#include "framework/controls/window.h"
#include "toolkit/web/web_toolkit.h"

namespace {

using namespace framework;

struct OtherWindow final : Window {
  void Layout() override {
    Title("Another Program");
    Width(300);
    Height(220);
    Visible(true);
  }
  void CreateControls() override {
    heard = Make<Label>("heard", 10);
    list = Make<Listbox>("list", 160);
    list->ColumnCount(4);
    list->ColumnWidths("35%,0%,15%");
    list->AddRow({"first", "unseen", "third", "unseen too"});
    menu = Make<PopupMenu>("menu", 190);
    menu->InitialValue("one\rtwo\rthree");
    menu->ListIndex(1);
    AnswerBy<&OtherWindow::Change>(Make<CheckBox>("change", 100));
    AnswerBy<&OtherWindow::Fail>(Make<CheckBox>("fail", 40));
    AnswerBy<&OtherWindow::Quit>(Make<CheckBox>("quit", 70));
  }
  void Change(const Ref<CheckBox>& box) {
    if (!box->Value()) return menu->ListIndex(0);
    Make<CheckBox>("late", 130);
    list->ColumnWidths("25%,25%,25%,25%");
    menu->InitialValue("four\rfive");
  }
  void Fail(const Ref<CheckBox>&) { throw 1; }
  void Quit(const Ref<CheckBox>&) { Toolkit::Current().Quit(); }

  template <class C>
  Ref<C> Make(const char* name, std::int64_t top) {
    auto control = __New<C>();
    control->Name(name);
    control->Left(10);
    control->Top(top);
    control->Width(200);
    control->Height(20);
    control->Visible(true);
    control->Enabled(true);
    _AddControl(name, control);
    control->Constructor();
    return control;
  }
  template <auto kMethod>
  void AnswerBy(const Ref<CheckBox>& box) {
    RuntimeAddEventHandler(box, CheckBox::kAction,
                           RuntimeCreateDelegate<kMethod>(Ref<OtherWindow>(this), "( CheckBox )"));
  }

  Ref<Label> heard;
  Ref<Listbox> list;
  Ref<PopupMenu> menu;
};

struct OtherApp final : Application {
  void _MacOSNotificationReceived(const String& name) override { window->heard->Text(name); }
  Ref<OtherWindow> window;
};

}  // namespace

int main() {
  static toolkit::web::WebToolkit toolkit;
  RuntimeInit();
  RuntimePerformInitializers({});
  const auto app = RuntimeNewObject<OtherApp>();
  _RuntimeRegisterAppObject(app);
  _RunFrameworkInitialization([] {
    const auto window = RuntimeNewObject<OtherWindow>();
    RuntimeCheckCast<OtherApp>(getAppObject())->window = window;
    window->Constructor();
  });
  _RuntimeRun();
}
