"""Stands in for LinuxCNC's module: a machine that is on, referenced and idle in manual mode, and
that notes the commands it gets. Tests change its status as they please."""

from types import SimpleNamespace

(MODE_MANUAL, MODE_AUTO, MODE_MDI) = (1, 2, 3)
(STATE_ESTOP, STATE_ESTOP_RESET, STATE_OFF, STATE_ON) = (1, 2, 3, 4)
(INTERP_IDLE, INTERP_READING, INTERP_PAUSED, INTERP_WAITING) = (1, 2, 3, 4)
(RCS_DONE, RCS_EXEC, RCS_ERROR) = (1, 2, 3)
(EXEC_ERROR, EXEC_DONE, EXEC_WAITING_FOR_MOTION) = (1, 2, 3)
(AUTO_RUN, AUTO_PAUSE, AUTO_RESUME, AUTO_STEP) = (0, 1, 2, 3)
(FLOOD_OFF, FLOOD_ON, MIST_OFF, MIST_ON) = (0, 1, 0, 1)
(TRAJ_MODE_FREE, TRAJ_MODE_COORD, TRAJ_MODE_TELEOP) = (1, 2, 3)
(JOG_STOP, JOG_CONTINUOUS, JOG_INCREMENT) = (0, 1, 2)
(NML_ERROR, NML_TEXT, OPERATOR_ERROR, OPERATOR_TEXT) = (1, 2, 11, 12)

version = "1.2.3"
nmlfile = "/dev/null"


class error(RuntimeError):
    pass


class stat(SimpleNamespace):
    latest = None

    def __init__(self):
        places = (0.0,) * 9
        super().__init__(
            task_state=STATE_ON, task_mode=MODE_MANUAL, task_paused=0, state=RCS_DONE,
            exec_state=EXEC_DONE, interp_state=INTERP_IDLE, motion_mode=TRAJ_MODE_TELEOP,
            inpos=True, echo_serial_number=0, axis_mask=0b111, joints=3, spindles=1,
            homed=(1, 1, 1) + (0,) * 13, limit=(0,) * 16, linear_units=1.0, max_velocity=100.0,
            current_vel=0.0, settings=(0, 0.0, 0.0), feedrate=1.0, rapidrate=1.0,
            actual_position=places, dtg=places, g5x_offset=places, g92_offset=places,
            tool_offset=places, g5x_index=1, tool_in_spindle=0, tool_table=(), file="",
            gcodes=(0, 0, -1, 170, 400, 210, 900, 940, 540, 490, 980, 640),
            motion_line=0, current_line=0, optional_stop=False, block_delete=False, flood=0, mist=0,
            joint=tuple({"homing": 0, "velocity": 0.0, "ferror_current": 0.0} for _ in range(16)),
            axis=tuple({"min_position_limit": -100.0, "max_position_limit": 100.0}
                       for _ in range(9)),
            spindle=tuple({"speed": 0.0, "override": 1.0} for _ in range(8)))
        self.polls = []  # what is to change at the next looks
        stat.latest = self

    def poll(self):
        if self.polls:
            self.__dict__.update(self.polls.pop(0))


class command:
    """Takes each command at once, with what `effects` has as its effect on the status."""

    def __init__(self):
        self.status = stat.latest
        self.serial = 0
        self.given = []
        self.effects = {}
        self.deaf = False

    def wait_complete(self, _):
        return self.status.state

    def __getattr__(self, name):
        if name.startswith("_"):
            raise AttributeError(name)

        def give(*words):
            self.given.append((name, *words))
            self.serial += 1
            if not self.deaf:
                self.status.echo_serial_number = self.serial
                self.status.__dict__.update(self.effects.get((name, *words), {}))
        return give


class error_channel:
    def __init__(self):
        self.messages = []

    def poll(self):
        return self.messages.pop(0) if self.messages else None


class ini:
    """A configuration, whose lines are `NAME = VALUE` in a section."""

    def __init__(self, path):
        try:
            with open(path) as file:
                self.lines = file.read().splitlines()
        except OSError as reason:
            raise error(str(reason)) from reason

    def find(self, _, name):
        for line in self.lines:
            if line.startswith(f"{name} = "):
                return line.partition(" = ")[2]
        return None
