#pragma once

#include <cstddef>
#include <functional>

// The operations of dom.js, and what it calls back.
extern "C" {

using PageCall = const std::function<void()>;

int page_Find(const char* id);
int page_Make(int parent, const char* tag);
void page_Forget(int element);
void page_Remove(int element);
void page_Put(int element, int before);
void page_Text(int element, const char* text, std::size_t size);
void page_Attribute(int element, const char* name, const char* text, std::size_t size);
void page_NoAttribute(int element, const char* name);
void page_Style(int element, const char* name, const char* text, std::size_t size);
void page_Place(int element, double left, double top, double width, double height);
void page_Set(int element, const char* property, double value);
double page_Get(int element, const char* property);
void page_Focus(int element);
void page_Listen(int element, const char* event, PageCall* listener);
void page_Watch(int element, const char* query, PageCall* listener);
void page_Later(int delay_ms, PageCall* work);
int page_Key(const char* keys);
int page_Row();
bool page_IsByHand();
bool page_IsTouch();
bool page_HasCtrl();
void page_Take();
void page_TellCut();
void page_Alert(const char* text, std::size_t size);
void page_Log(const char* text, std::size_t size);
void page_End();

void page_Heard(PageCall* listener);
/// Takes the work over.
void page_Due(PageCall* work);
}
