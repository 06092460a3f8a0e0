// The freight script of the shipped register.dat itself, not a copy.
import fs from 'node:fs';
import vm from 'node:vm';

const register = new URL('../../installation/template/register.dat', import.meta.url);

export function loadFreightRules() {
  const script = /<script id="freight-rules">([\s\S]*?)<\/script>/.exec(fs.readFileSync(register, 'latin1'))[1];
  const context = vm.createContext({ TextDecoder });
  vm.runInContext(script, context, { filename: 'register.dat' });
  return context.Freight;
}
