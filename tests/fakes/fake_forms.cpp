#include "tests/fakes/fake_forms.h"

#include "base/characters.h"
#include "base/twips.h"
#include "core/date.h"
#include "platform/pictures.h"
#include "platform/process.h"
#include "toolkit/form.h"

#include <algorithm>

using platform::Input_Kind;
using platform::Mouse_Button;

Fake_Desktop &Desktop() {
    static Fake_Desktop desktop;
    return desktop;
}

Fake_Shell &Shell() {
    static Fake_Shell shell;
    return shell;
}

void Reset_Desktop() {
    Desktop() = Fake_Desktop{};
    Shell() = Fake_Shell{};
}

void Fake_Desktop::Advance(unsigned milliseconds) {
    const unsigned end = time + milliseconds;
    for (;;) {
        const auto next = std::min_element(timers.begin(), timers.end(), [](const auto &a, const auto &b) {
            return a.second.due < b.second.due;
        });
        if (next == timers.end() || next->second.due > end)
            break;
        time = std::max(time, next->second.due);
        next->second.due += next->second.interval;
        const auto tick = next->second.tick;
        if (!menu_open)
            tick();
    }
    time = std::max(time, end);
}

platform::Canvas Painted(const Form &form, const Rect &clip) {
    platform::Canvas canvas;
    form.Model().paint(canvas, clip);
    return canvas;
}

namespace {

void Mouse(Form &form, Input_Kind kind, const Control &control, Mouse_Button button) {
    const Point middle{control.Width() / 2, control.Height() / 2};
    // A dialog's controls have their own windows.
    if (form.Model().kind == platform::Form_Kind::Dialog)
        return Input(form, {.kind = kind, .point = middle, .button = button}, &control);
    Input(form,
          {.kind = kind, .point = {middle.x + control.Left(), middle.y + control.Top()}, .button = button});
}

/// Returns the form's native window, which must exist.
Fake_Mirror &Mirror_Of(const platform::Form_Model &model) {
    Require(Desktop().mirrors.contains(&model), "a native window that is not there: " + model.name);
    return Desktop().mirrors[&model];
}

platform::Shell_Window View_Holder() {
    return Shell().worker != 0 ? Shell().worker : Shell().desktop;
}

} // namespace

void Input(Form &form, platform::Input_Event event, const Control *control) {
    if (control != nullptr)
        event.control = control->State().index;
    form.Model().input(event);
}

void Press(Form &form, const Control &control, Mouse_Button button) {
    Mouse(form, Input_Kind::Mouse_Down, control, button);
}

void Release(Form &form, const Control &control, Mouse_Button button) {
    Mouse(form, Input_Kind::Mouse_Up, control, button);
}

void Click(Form &form, const Control &control, Mouse_Button button) {
    Press(form, control, button);
    Release(form, control, button);
}

void Double_Click(Form &form, const Control &control) {
    Click(form, control);
    Mouse(form, Input_Kind::Double_Click, control, Mouse_Button::Left);
    Release(form, control);
}

namespace platform {

void Create_Mirror(const Form_Model &model) {
    if (Desktop().refuses_windows)
        throw Error("The window cannot be created");
    Require(!Desktop().mirrors.contains(&model), "a second native window for " + model.name);
    Fake_Mirror &mirror = Desktop().mirrors[&model];
    mirror.shown = mirror.shown_unclipped = model.visible;
}

void Destroy_Mirror(const Form_Model &model) {
    // A real window reads the controls while it is destroyed, so they must still exist.
    for (const Control_State *control : model.controls)
        Require(!control->name.empty(), "a control without a name in " + model.name);
    Desktop().mirrors.erase(&model);
}

void Form_Changed(const Form_Model &model, Aspect aspect) {
    Desktop().announced.push_back({"", aspect});
    Fake_Mirror &mirror = Mirror_Of(model);
    mirror.shown = model.visible;
    if (aspect == Aspect::Bounds && !mirror.stuck)
        mirror.displaced = {};
    mirror.shown_unclipped |= model.visible && mirror.clip.empty() && mirror.shape.empty();
}

void Control_Changed(const Form_Model &model, const Control_State &control, Aspect aspect,
                     const Rect &before) {
    Mirror_Of(model);
    Require(aspect != Aspect::Bounds || before != control.bounds, "a move that moves nothing");
    Desktop().announced.push_back({control.name, aspect});
}

void Clip_Window(const Form_Model &model, const std::vector<Rect> &rects) {
    Mirror_Of(model).clip = rects;
}

void Shape_Window(const Form_Model &model, const std::vector<Point> &corners) {
    Mirror_Of(model).shape = corners;
}

std::optional<Point> Window_Corner(const Form_Model &model) {
    const auto mirror = Desktop().mirrors.find(&model);
    if (mirror == Desktop().mirrors.end())
        return std::nullopt;
    const auto pixels = [](int twips) { return Twips_To_Pixels(twips, Dots_Per_Inch()); };
    return Point{pixels(model.bounds.left) + mirror->second.displaced.x,
                 pixels(model.bounds.top) + mirror->second.displaced.y};
}

void Bring_To_Front(const Form_Model &model) {
    Mirror_Of(model);
    Desktop().front = &model;
}

void Fill_Rect(Canvas &canvas, const Rect &rect, Colour colour) {
    canvas.operations.push_back({Canvas_Operation::Kind::Fill, rect, colour});
}

void Frame_Rect(Canvas &canvas, const Rect &rect, Colour colour, int) {
    canvas.operations.push_back({Canvas_Operation::Kind::Frame, rect, colour});
}

void Fill_Polygon(Canvas &canvas, const std::vector<Point> &corners, Colour colour) {
    canvas.operations.push_back(
        {.kind = Canvas_Operation::Kind::Polygon, .colour = colour, .corners = corners});
}

void Draw_Program_Icon(Canvas &, const Rect &) {
}

void Draw_Text(Canvas &canvas, std::string_view text, const Rect &rect, const Font &, Colour colour,
               Text_Align align, bool right_to_left) {
    canvas.operations.push_back(
        {Canvas_Operation::Kind::Text, rect, colour, std::string(text), align, right_to_left});
}

void Draw_Picture(Canvas &canvas, const Picture &, const Rect &rect) {
    canvas.operations.push_back({Canvas_Operation::Kind::Picture, rect});
}

int Text_Width(std::string_view text, const Font &) {
    ++Desktop().measured;
    int width = 0;
    for (std::size_t end = text.size(); end > 0; end = Previous_Character(text, end))
        width += Desktop().char_width;
    return width;
}

int Line_Height(const Font &font) {
    return font.tenth_points * 8 / 3;
}

Colour Resolve_Colour(Colour colour) {
    // All system colours are the same light grey.
    return colour < 0 ? Rgb(192, 192, 192) : colour & 0xFFFFFF;
}

int Dots_Per_Inch() {
    return Desktop().dots_per_inch;
}

Size Screen_Size() {
    return {1024, 768};
}

Rect Work_Area() {
    return Desktop().work_area;
}

Rect Work_Area_Around(Point) {
    return Desktop().work_area;
}

Rect Work_Area_Of(const Rect &place) {
    return Desktop().second_area.Intersects(place) ? Desktop().second_area : Desktop().work_area;
}

bool High_Contrast() {
    return Desktop().high_contrast;
}

bool Mouse_Button_Held() {
    return Desktop().button_held;
}

int Track_Popup_Menu(const Form_Model &, const std::vector<Menu_Item> &items, const Point *at) {
    Desktop().menu_at = at == nullptr ? std::nullopt : std::optional(*at);
    if (Desktop().answer_menu && Desktop().expected_menus.empty()) {
        Desktop().menu_open = true;
        const int answer = Desktop().answer_menu(items);
        Desktop().menu_open = false;
        return answer;
    }
    std::string texts;
    for (const Menu_Item &item : items)
        texts += (texts.empty()           ? ""
                  : item.separator_before ? "|-|"
                                          : "|") +
                 (item.enabled ? item.text : "(" + item.text + ")");
    auto &expected = Desktop().expected_menus;
    const Expected_Menu menu = expected.empty() ? Expected_Menu{"none"} : expected.front();
    Require(menu.texts == texts, "an unexpected menu: " + texts + "\nexpected: " + menu.texts);
    if (menu.texts != texts)
        return 0;
    expected.pop_front();
    if (menu.meanwhile)
        Desktop().menu_open = true, menu.meanwhile();
    Desktop().menu_open = false;
    return menu.answer;
}

void Run_Message_Loop() {
    if (!Desktop().in_loop)
        return;
    while (!Desktop().loop_ended)
        Desktop().in_loop();
    Desktop().loop_ended = false;
}

void End_Message_Loop() {
    Desktop().loop_ended = true;
}

void Process_Waiting_Messages() {
    if (Desktop().messages.empty())
        return;
    const auto message = std::move(Desktop().messages.front());
    Desktop().messages.pop_front();
    message();
}

void Wait_For_Messages(unsigned milliseconds) {
    // Waiting advances the clock, by short steps since messages could end the wait.
    const unsigned step = std::min(milliseconds, 50U);
    Date_Time &now = Fakes().now;
    now.millisecond += static_cast<int>(step);
    now.second += now.millisecond / 1000;
    now.millisecond %= 1000;
    const int minutes = now.second / 60;
    now.second %= 60;
    now = Later(now, minutes);
    Desktop().Advance(step);
}

Timer_Id Start_Timer(unsigned milliseconds, Callback<void()> tick) {
    static Timer_Id last = 0;
    Desktop().timers[++last] = {milliseconds, Desktop().time + milliseconds, tick};
    return last;
}

void Stop_Timer(Timer_Id id) {
    Desktop().timers.erase(id);
}

void Listen_To_Broadcasts(Callback<bool(Broadcast)> listener) {
    Desktop().listener = listener;
}

void Explain_Refusal(const std::string &reason) {
    Desktop().refusal = reason;
}

bool Claim_Single_Instance(const std::string &) {
    return true;
}

void Release_Single_Instance() {
}

int Restart_Count() {
    return Fakes().restart_count;
}

void Start_Again(int count) {
    Fakes().started_again = count;
}

bool Started_From_Temporary_Folder() {
    return Fakes().in_temporary_folder;
}

Shell_Window Find_Desktop_Window() {
    return Shell().desktop;
}

std::optional<Icon_View> Find_Icon_View(Shell_Window desktop) {
    Require(desktop != 0 && desktop == Shell().desktop, "a view in no desktop window");
    if (Shell().view == 0 || Shell().list == 0)
        return std::nullopt;
    return Icon_View{View_Holder(), Shell().view, Shell().list};
}

std::optional<Label_Colours> Icon_Label_Colours(Shell_Window list, unsigned patience) {
    Shell().patience = patience;
    Require(list != 0 && list == Shell().list, "no icon list asked for its colours");
    return Shell().colours;
}

bool Attach_To_Desktop(const Form_Model &model, Shell_Window holder) {
    Require(holder != 0 && holder == View_Holder(), "a window attached to no desktop");
    Shell().attached = &model;
    Shell().attached_to = holder;
    Shell().attached_hidden = !Mirror_Of(model).shown;
    if (Shell().dots_inside == 0 || Shell().dots_inside == Desktop().dots_per_inch)
        return true;
    Desktop().dots_per_inch = Shell().dots_inside;
    model.input({.kind = Input_Kind::Scale_Changed});
    return true;
}

void Keep_Over_View(const Form_Model &model, Shell_Window view) {
    Require(&model == Shell().attached && view == Shell().view && View_Holder() == Shell().attached_to,
            "a window elsewhere");
    Shell().covered = false;
}

void Open_Web_Page(const char *) {
}

} // namespace platform
