// SPDX-License-Identifier: GPL-3.0-or-later
/* libfreexl includes this and uses nothing of it. */
