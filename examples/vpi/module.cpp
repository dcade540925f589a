// tarn.vpi: makes the library's operations system tasks of a Verilog simulator.
//
//     $tarn_add(sum, a, b);    // sum = a + b
//
// The first argument is the variable that takes the result; the others are any expressions.
// operations.h lists the tasks, shapes.h tells what each kind of task does with its arguments.
#include <exception>
#include <string>

#include "operations.h"

namespace {

using namespace tarnvpi;

/** What was registered with the running call. */
const Operation& RunningOperation(PLI_BYTE8* userData) {
    return *reinterpret_cast<const Operation*>(userData);
}

Arguments ArgumentsOfCall() {
    Arguments arguments;
    const vpiHandle iterator = vpi_iterate(vpiArgument, vpi_handle(vpiSysTfCall, nullptr));
    if (iterator == nullptr) return arguments;
    while (const vpiHandle argument = vpi_scan(iterator)) {
        arguments.push_back(argument);
    }
    return arguments;
}

void Refuse(const Operation& operation, const std::string& reason) {
    vpi_printf("tarn.vpi: %s: %s\n", operation.name, reason.c_str());
    vpi_control(vpiFinish, 1);
}

PLI_INT32 Compile(PLI_BYTE8* userData) {
    const Operation& operation = RunningOperation(userData);
    const std::size_t wanted =
        std::visit([](const auto& shape) { return shape.kArguments; }, operation.shape);
    const std::size_t given = ArgumentsOfCall().size();
    if (given != wanted) {
        Refuse(operation,
               "takes " + std::to_string(wanted) + " arguments, not " + std::to_string(given));
    }
    return 0;
}

PLI_INT32 Call(PLI_BYTE8* userData) {
    const Arguments arguments = ArgumentsOfCall();
    const Operation& operation = RunningOperation(userData);
    try {
        std::visit([&](const auto& shape) { Run(shape, arguments); }, operation.shape);
    } catch (const std::exception& error) {
        Refuse(operation, error.what());
    }
    return 0;
}

void RegisterOperations() {
    for (const Operation& operation : kOperations) {
        s_vpi_systf_data task{};
        task.type = vpiSysTask;
        task.tfname = const_cast<PLI_BYTE8*>(operation.name);
        task.calltf = Call;
        task.compiletf = Compile;
        task.user_data = reinterpret_cast<PLI_BYTE8*>(const_cast<Operation*>(&operation));
        vpi_register_systf(&task);
    }
}

}  // namespace

/** The simulator calls what stands here when it loads the module. */
void (*vlog_startup_routines[])() = {RegisterOperations, nullptr};
