#pragma once

#include <chrono>
#include <memory>

#include <QString>

#include "app/context.h"
#include "shell/frm000_main_window.h"
#include "shell/frm_close_countdown.h"
#include "shell/update_check.h"

namespace kaldo {

class FRMAcceso;
class FRMInicio;

/// What a run may replace: tests, benches and the demonstration put their own services in. What is
/// given must outlive the program.
struct ProgramSettings {
    QString root;                            ///< root of the installation
    const Clock *clock = nullptr;            ///< null: that of the machine
    Messages *messages = nullptr;            ///< null: boxes on the desktop
    FileDialogs *fileDialogs = nullptr;      ///< null: the chooser of the desktop
    report::Printing *printing = nullptr;    ///< null: the station's printers
    Seam *seam = nullptr;                    ///< watches every connection
    std::chrono::milliseconds splash{5000};  ///< from the start of the run loop to the login
    std::chrono::milliseconds tick{1000};    ///< pace of the clock
    CountDownPace countDown;                 ///< before the program ends by itself
    UpdateSettings update;                   ///< the way to the update server
};

/// One run of the system on a station: owns everything from the ini file to the main window.
class Program {
public:
    /// Exit code of a run that ends because the clinic's database is not connected.
    static constexpr int kNotConnected = 1;

    explicit Program(const ProgramSettings &settings);
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// Creates the modules and the resident screens in their fixed order, each completely before
    /// the next. False when the run ends here: the clinic's database is not connected.
    bool start();

    /// start(), and the run loop until the application ends; the exit code, kNotConnected where
    /// start() ended the run.
    int run();

    Context &context();
    FRM000 &mainWindow();
    FRMAcceso &login();
    /// The splash while it stands, else null.
    FRMInicio *splash();
    DMConexion &conexion();

private:
    struct Parts;

    /// False, and told, where one of them failed.
    bool createConnections();
    void createControlPanel();
    void createResidents();
    void registerScreens();
    void Timer2();

    std::unique_ptr<Parts> parts_;
};

}  // namespace kaldo
