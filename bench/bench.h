#ifndef MELVOX_BENCH_H
#define MELVOX_BENCH_H

#include "loads.h"

#include <QApplication>
#include <QMessageBox>

#include <benchmark/benchmark.h>

/** Measurements come in pairs: "what/which" and "what/which/bare", the bare way of doing the same. */
namespace melvox_bench
{

/** Building (and destroying) a page. */
template <typename page_t> void buildPage(benchmark::State& state)
{
    receiver_t receiver;
    for (auto _ : state)
    {
        page_t page(receiver.device.get());
        benchmark::DoNotOptimize(&page);
    }
}

/** Building (and destroying) its form alone. */
template <typename form_t, typename base_t = QWidget> void buildForm(benchmark::State& state)
{
    for (auto _ : state)
    {
        base_t widget;
        form_t form;
        form.setupUi(&widget);
        benchmark::DoNotOptimize(&widget);
    }
}

template <typename form_t> struct bareDialog_t : QDialog
{
    explicit bareDialog_t(QWidget* parent) : QDialog(parent) { form.setupUi(this); }
    form_t form;
};

struct bareQuestion_t : QMessageBox
{
    explicit bareQuestion_t(QWidget* parent)
        : QMessageBox(QMessageBox::Question, "title", "text", QMessageBox::Yes | QMessageBox::No, parent)
    {
    }
};

/** A page's form and those of the dialogs that belong to it. */
template <typename form_t, typename... dialogs_t> void buildForms(benchmark::State& state)
{
    for (auto _ : state)
    {
        QWidget widget;
        form_t form;
        form.setupUi(&widget);
        (new dialogs_t(&widget), ...);
        benchmark::DoNotOptimize(&widget);
    }
}

template <typename dialog_t> void buildDialog(benchmark::State& state)
{
    receiver_t receiver;
    for (auto _ : state)
    {
        dialog_t dialog(receiver.device.get(), nullptr);
        benchmark::DoNotOptimize(&dialog);
    }
}

template <typename dialog_t> void buildPlainDialog(benchmark::State& state)
{
    for (auto _ : state)
    {
        dialog_t dialog(nullptr);
        benchmark::DoNotOptimize(&dialog);
    }
}

inline int run(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

} // namespace melvox_bench

#define MELVOX_BENCH_MAIN                                                                                              \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        return melvox_bench::run(argc, argv);                                                                          \
    }

#endif
