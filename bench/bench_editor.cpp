// The editor engine under load: every tool's stroke, every effect, and a long history.
// Each figure is the time of one whole operation on the engine, as a user would trigger it.
#include "editor/IconEditor.h"
#include "effects/Gradient.h"
#include "effects/Kaleidoscope.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <utility>
#include <vector>

using editor::IconEditor;
using editor::Tool;

namespace {

icon::IconPlanes patternedIcon() {
    icon::IconPlanes planes;
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) {
            const unsigned i = static_cast<unsigned>(y * 32 + x);
            if (i % 7 == 0)
                planes.erase(x, y);
            else
                planes.paint(x, y, (i * 2654435761u) & 0xFFFFFF);
        }
    return planes;
}

double at(int cell) {
    return cell * 10 + 5;
}

// The history of a benchmark would grow with every iteration: it is based again on the icon
// every few thousand operations, a cost spread thinly over them.
void keepHistoryShort(IconEditor& e, const icon::IconPlanes& icon) {
    if (e.history().undoCount() > 4096)
        e.loadIcon(icon);
}

// A stroke through the cells of a diagonal, with a move on every cell.
void BM_ToolStroke(benchmark::State& state) {
    const auto tool = static_cast<Tool>(state.range(0));
    const icon::IconPlanes icon = patternedIcon();
    IconEditor e;
    e.loadIcon(icon);
    for (auto _ : state) {
        e.selectTool(tool);
        e.press(1, at(2), at(3));
        for (int c = 2; c <= 29; ++c)
            e.move(1, at(c), at(c + 1));
        e.release(1, at(29), at(30));
        if (tool == Tool::Selection)
            e.DropSelection();
        keepHistoryShort(e, icon);
    }
    // A stroke is 30 events: the press, 28 moves and the release.
    state.SetItemsProcessed(state.iterations() * 30);
    state.SetLabel(editor::toolName(tool));
}
BENCHMARK(BM_ToolStroke)->DenseRange(1, 12);

// A click: the picker and the fill act on the release alone.
void BM_ToolClick(benchmark::State& state) {
    const auto tool = static_cast<Tool>(state.range(0));
    const icon::IconPlanes icon = patternedIcon();
    IconEditor e;
    e.loadIcon(icon);
    for (auto _ : state) {
        e.selectTool(tool);
        e.press(1, at(16), at(16));
        e.release(1, at(16), at(16));
        keepHistoryShort(e, icon);
    }
    state.SetLabel(editor::toolName(tool));
}
BENCHMARK(BM_ToolClick)->Arg(static_cast<int>(Tool::Picker))->Arg(static_cast<int>(Tool::Fill));

// The worst fill: the whole transparent icon at once.
void BM_FillWholeIcon(benchmark::State& state) {
    IconEditor e;
    for (auto _ : state) {
        e.loadIcon(icon::IconPlanes::blank());
        e.selectTool(Tool::Fill);
        e.press(1, at(16), at(16));
        e.release(1, at(16), at(16));
    }
}
BENCHMARK(BM_FillWholeIcon);

// Grabbing a selection, dragging it across the canvas and stamping it.
void BM_SelectionMoveAndDrop(benchmark::State& state) {
    const icon::IconPlanes icon = patternedIcon();
    IconEditor e;
    e.loadIcon(icon);
    for (auto _ : state) {
        e.SelectAll();
        e.press(1, 150, 150);
        for (int d = 0; d < 100; d += 10)
            e.move(1, 150 + d, 150 + d);
        e.release(1, 250, 250);
        e.DropSelection();
        keepHistoryShort(e, icon);
    }
}
BENCHMARK(BM_SelectionMoveAndDrop);

void BM_CopyAndPaste(benchmark::State& state) {
    const icon::IconPlanes icon = patternedIcon();
    IconEditor e;
    e.loadIcon(icon);
    e.SelectAll();
    const QImage copy = e.CopySelection();
    QImage big(640, 480, QImage::Format_ARGB32);
    big.fill(qRgba(10, 200, 30, 255));
    const QImage& picture = state.range(0) ? big : copy;
    for (auto _ : state) {
        e.PasteClipboard(picture, false, editor::PasteFit::Proportional);
        e.DropSelection();
        keepHistoryShort(e, icon);
    }
    state.SetLabel(state.range(0) ? "640x480 reduced" : "32x32");
}
BENCHMARK(BM_CopyAndPaste)->Arg(0)->Arg(1);

using Effect = editor::Events (*)(IconEditor&);

const std::vector<std::pair<const char*, Effect>>& effectTable() {
    static const std::vector<std::pair<const char*, Effect>> table = {
        {"Mirroir horizontal",
         [](IconEditor& e) {
             return e.applyEffect(editor::PixelEffect::FlipHorizontal);
         }},
        {"Mirroir vertical",
         [](IconEditor& e) {
             return e.applyEffect(editor::PixelEffect::FlipVertical);
         }},
        {"Rotation 90° à gauche",
         [](IconEditor& e) {
             return e.applyEffect(editor::PixelEffect::TurnLeft);
         }},
        {"Rotation 90° à droite",
         [](IconEditor& e) {
             return e.applyEffect(editor::PixelEffect::TurnRight);
         }},
        {"Reflet gauche/droite",
         [](IconEditor& e) {
             return e.applyEffect(editor::PixelEffect::ReflectLeftOntoRight);
         }},
        {"Reflet droite/gauche",
         [](IconEditor& e) {
             return e.applyEffect(editor::PixelEffect::ReflectRightOntoLeft);
         }},
        {"Reflet haut/bas",
         [](IconEditor& e) {
             return e.applyEffect(editor::PixelEffect::ReflectTopOntoBottom);
         }},
        {"Reflet bas/haut",
         [](IconEditor& e) {
             return e.applyEffect(editor::PixelEffect::ReflectBottomOntoTop);
         }},
        {"Niveaux de gris",
         [](IconEditor& e) {
             return e.applyEffect(editor::PixelEffect::GreyLevels);
         }},
        {"Icône en négatif",
         [](IconEditor& e) {
             return e.applyEffect(editor::PixelEffect::Negative);
         }},
        {"Effet bouton",
         [](IconEditor& e) {
             return e.buttonEffect();
         }},
        {"Ajuster les couleurs (Ok)",
         [](IconEditor& e) {
             static const effects::ColourAdjuster adjuster = [&e] {
                 auto a = e.beginColourAdjustment();
                 a.change(effects::ColourAdjuster::Bar::Brightness, 5);
                 return a;
             }();
             return e.applyColourAdjustment(adjuster);
         }},
        {"Fond 'kaléidoscope'",
         [](IconEditor& e) {
             static effects::StdUniformGenerator random(42);
             return e.applyBackground(effects::Kaleidoscope::generate(
                 effects::Kaleidoscope::kDefaultDensity, 0xC0C0C0, random));
         }},
        {"Fond en dégradé",
         [](IconEditor& e) {
             return e.applyBackground(effects::Gradient::render(0, icon::kWhite, 45));
         }},
    };
    return table;
}

// Each effect on the whole icon (one history step each) or, with range(1), on a floating
// selection of 20×20 pixels.
void BM_Effect(benchmark::State& state) {
    const auto& [name, effect] = effectTable()[static_cast<std::size_t>(state.range(0))];
    const bool onSelection = state.range(1) != 0;
    const icon::IconPlanes icon = patternedIcon();
    IconEditor e;
    e.loadIcon(icon);
    auto float20 = [&e] {
        e.selectTool(Tool::Selection);
        e.press(1, 40, 40);
        e.release(1, 240, 240);
        e.press(1, 100, 100);
        e.release(1, 100, 100);
    };
    if (onSelection)
        float20();
    for (auto _ : state) {
        benchmark::DoNotOptimize(effect(e));
        if (e.history().undoCount() > 4096) {
            e.loadIcon(icon);
            if (onSelection)
                float20();
        }
    }
    state.SetLabel(std::string(name) + (onSelection ? " (sélection)" : ""));
}
BENCHMARK(BM_Effect)->ArgsProduct({benchmark::CreateDenseRange(0, 13, 1), {0}});
BENCHMARK(BM_Effect)->ArgsProduct({benchmark::CreateDenseRange(0, 9, 1), {1}});

// The colour adjustment dialog's own work: filling the tables when it opens, and one change
// event of a bar (a step over the 1024 pixels and the preview).
void BM_ColourAdjusterOpen(benchmark::State& state) {
    IconEditor e;
    e.loadIcon(patternedIcon());
    for (auto _ : state)
        benchmark::DoNotOptimize(e.beginColourAdjustment());
}
BENCHMARK(BM_ColourAdjusterOpen);

void BM_ColourAdjusterStep(benchmark::State& state) {
    effects::ColourAdjuster adjuster(patternedIcon());
    int value = 0, direction = 5;
    for (auto _ : state) {
        if (value + direction > 255 || value + direction < -255)
            direction = -direction;
        value += direction;
        adjuster.change(effects::ColourAdjuster::Bar::Brightness, value);
    }
}
BENCHMARK(BM_ColourAdjusterStep);

// The dialogs' previews: a kaleidoscope of 250 and of 500 passes, a gradient.
void BM_KaleidoscopeGenerate(benchmark::State& state) {
    effects::StdUniformGenerator random(7);
    for (auto _ : state)
        benchmark::DoNotOptimize(
            effects::Kaleidoscope::generate(static_cast<int>(state.range(0)), 0, random));
}
BENCHMARK(BM_KaleidoscopeGenerate)->Arg(250)->Arg(500);

void BM_GradientRender(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(
            effects::Gradient::render(0, icon::kWhite, static_cast<int>(state.range(0))));
}
BENCHMARK(BM_GradientRender)->Arg(0)->Arg(45);

void BM_UndoRedo(benchmark::State& state) {
    IconEditor e;
    e.loadIcon(patternedIcon());
    for (int i = 0; i < 1000; ++i)
        e.applyEffect(editor::PixelEffect::Negative);
    for (auto _ : state) {
        benchmark::DoNotOptimize(e.Undo());
        benchmark::DoNotOptimize(e.Redo());
    }
    state.SetItemsProcessed(state.iterations() * 2);
}
BENCHMARK(BM_UndoRedo);

// 10,000 pencil clicks, each one step, then all of them undone. The counter is the heap the
// history holds at its fullest.
void BM_History10000Steps(benchmark::State& state) {
    double heldMiB = 0;
    for (auto _ : state) {
        const std::size_t before = mallinfo2().uordblks;
        {
            IconEditor e;
            e.selectTool(Tool::Pencil);
            for (int i = 0; i < 10000; ++i) {
                const int cell = i % 1024;
                e.press(1 + i % 2, at(cell % 32), at(cell / 32));
                e.release(1 + i % 2, at(cell % 32), at(cell / 32));
            }
            heldMiB = static_cast<double>(mallinfo2().uordblks - before) / (1024.0 * 1024.0);
            for (int i = 0; i < 10000; ++i)
                e.Undo();
            benchmark::DoNotOptimize(e.planes());
        }
    }
    state.counters["heap_MiB"] = heldMiB;
    state.counters["steps"] = 10000;
}
BENCHMARK(BM_History10000Steps)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
