// SPDX-License-Identifier: GPL-3.0-or-later
/* Empty: libfreexl includes this header but uses no declaration from it. */
