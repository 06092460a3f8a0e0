// The shipped projects, built by varlo-cli into a folder of the test's own.
import { execFileSync } from 'node:child_process';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

const top = fileURLToPath(new URL('../../../', import.meta.url));
const cli = process.env.VARLO_CLI ?? path.join(top, 'build/sanitize/src/varlo-cli');

// A copy of the installation whose settings name this order server and account. `remove` takes it away.
export function makeInstallation({ server = '', account = '' } = {}) {
  const root = fs.mkdtempSync(path.join(os.tmpdir(), 'varlo-store-'));
  fs.cpSync(path.join(top, 'installation'), root, { recursive: true, filter: (name) => !/[\\/](Web|Backup)$/.test(name) });
  fs.writeFileSync(path.join(root, 'config.ini'), `varlo=${server}\r\nid=${account}\r\n`);
  const run = (...words) => execFileSync(cli, ['--install', root, ...words], { encoding: 'utf8' });
  return {
    root,
    // Builds a project, in another layout if one is named as "style/scheme" with its template set, and gives
    // the folder of its site and the last line of the log.
    build(project, layout = null, set = '') {
      const file = path.join(root, 'Projects', project, `${project}.stp`);
      if (layout) {
        fs.writeFileSync(file, fs.readFileSync(file, 'latin1').replace(/^LAYOUT=.*?(\r?)$/m, `LAYOUT=${layout}$1`), 'latin1');
        for (const name of fs.readdirSync(path.join(root, 'template', set))) {
          if (name.endsWith('.htm')) fs.copyFileSync(path.join(root, 'template', set, name), path.join(path.dirname(file), 'Template', name));
        }
      }
      const folder = `site_${project}${set}`;
      const log = run('build', `Projects/${project}/${project}.stp`, '--to', folder);
      return { folder: path.join(root, folder), result: log.trim().split('\n').at(-1) };
    },
    dump: (project) => JSON.parse(run('dump', `Projects/${project}/${project}.stp`)),
    remove: () => fs.rmSync(root, { recursive: true, force: true }),
  };
}
