// finestre/robot.h - whoever answers the boxes and file dialogs that a script brings up: each is read off the screen, written
// as its event line, and answered by mouse and keyboard with what the script has queued.
#pragma once

void MontaRobot();  // behind the platforms of both hosts: keeps the windows', answers for the script
