#pragma once

#include <QString>

namespace cuebright::soak {

class Program;
struct Model;

/// Everything that can be told of a state, a thing a line.
[[nodiscard]] QString describe(Model& model);
/// What the model cannot know, where the toolkit puts the caret for instance, is told as the model has it.
[[nodiscard]] QString describe(Program& program, const Model& model);

/// The first line that differs; empty where none does.
[[nodiscard]] QString difference(const QString& expected, const QString& actual);

} // namespace cuebright::soak
