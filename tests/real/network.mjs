// Name and web servers of organisations with Exchange, in the network of this test run, and trust in their certificates.
// dnsmasq and nginx answer at one address. Another one is of a name server that never answers; it is asked for names of
// addresses.
import { createSocket } from 'node:dgram';
import { mkdir, readFile, rm, writeFile } from 'node:fs/promises';
import { once } from 'node:events';
import { end, output, start, until } from './processes.mjs';

const address = '10.9.0.1';
const silentAddress = '10.9.0.2';
const folder = `${process.cwd()}/network`;
export const serviceUrl = (domain) => `https://mail.${domain}/ews/exchange.asmx`;

// The hosts, and what differs from an ordinary one.
const hosts = [
  { host: 'autodiscover.basic.test' },
  { host: 'mail.record.test', port: 8443 },
  { host: 'autodiscover.hosted.test', leadsTo: 'autodiscover.elsewhere.test' },
  { host: 'autodiscover.elsewhere.test' },
  { host: 'autodiscover.expired.test', days: -1 },
  { host: 'autodiscover.other.test', certificateName: 'www.other.test' },
  { host: 'autodiscover.untrusted.test', signer: 'unknown' },
];

function settings(domain) {
  return (
    '<Autodiscover><Response><Account><Action>settings</Action><Protocol><Type>EXPR</Type>' +
    `<EwsUrl>${serviceUrl(domain)}</EwsUrl></Protocol></Account></Response></Autodiscover>`
  );
}

function domainOf(host) {
  return host.split('.').slice(1).join('.');
}

function server({ host, port = 443, leadsTo }) {
  if (leadsTo) {
    return `server { listen ${address}:80; server_name ${host};
      location / { return 302 https://${leadsTo}/autodiscover/autodiscover.xml; } }`;
  }
  return `server { listen ${address}:${port} ssl; server_name ${host};
    ssl_certificate ${folder}/${host}.pem; ssl_certificate_key ${folder}/${host}.key;
    location / {
      if ($http_authorization !~ "^Basic ") { return 401; }
      add_header WWW-Authenticate Negotiate always;
      add_header WWW-Authenticate NTLM always;
      add_header WWW-Authenticate 'Basic realm="mail"' always;
      default_type text/xml;
      return 200 '${settings(domainOf(host))}';
    } }`;
}

const webConfiguration = `daemon off; user root; pid ${folder}/nginx.pid; error_log ${folder}/nginx.log;
events {}
http {
  log_format visits '$host $request_method "$http_authorization"';
  access_log ${folder}/visits.log visits;
  client_body_temp_path ${folder}/body; proxy_temp_path ${folder}/proxy; fastcgi_temp_path ${folder}/fastcgi;
  uwsgi_temp_path ${folder}/uwsgi; scgi_temp_path ${folder}/scgi;
  server { listen ${address}:80 default_server; return 404; }
  ${hosts.map(server).join('\n')}
}
`;

const nameConfiguration = `keep-in-foreground
user=root
no-resolv
no-hosts
bind-interfaces
listen-address=${address}
pid-file=
local=/test/
server=/in-addr.arpa/${silentAddress}
log-queries
log-facility=${folder}/names.log
srv-host=_autodiscover._tcp.record.test,mail.record.test,8443
${hosts.map(({ host }) => `address=/${host}/${address}`).join('\n')}
`;

const newKey = ['-newkey', 'ec', '-pkeyopt', 'ec_paramgen_curve:P-256', '-nodes'];

async function openssl(...args) {
  await output('openssl', args);
}

async function makeAuthority(name) {
  const files = ['-keyout', `${folder}/${name}.key`, '-out', `${folder}/${name}.pem`];
  await openssl('req', '-x509', ...newKey, '-days', '2', '-subj', `/CN=${name}`, ...files);
}

async function makeCertificate({ host, days = 2, certificateName = host, signer = 'trusted' }) {
  const at = `${folder}/${host}`;
  await writeFile(`${at}.ext`, `subjectAltName=DNS:${certificateName}\n`);
  const request = ['-keyout', `${at}.key`, '-out', `${at}.csr`, '-subj', '/CN=host'];
  await openssl('req', '-new', ...newKey, ...request);
  const by = ['-CA', `${folder}/${signer}.pem`, '-CAkey', `${folder}/${signer}.key`, '-CAcreateserial'];
  const form = ['-days', `${days}`, '-extfile', `${at}.ext`, '-out', `${at}.pem`];
  await openssl('x509', '-req', '-in', `${at}.csr`, ...by, ...form);
}

// Puts a file or folder of the tests in place of one of the system, for the programs of this test run.
const mounted = [];
async function replace(systemPath, path) {
  await output('mount', ['--bind', path, systemPath]);
  mounted.push(systemPath);
}

export async function startNetwork() {
  await rm(folder, { recursive: true, force: true });
  await mkdir(`${folder}/certificates`, { recursive: true });
  for (const each of [address, silentAddress]) await output('ip', ['address', 'add', `${each}/32`, 'dev', 'lo']);
  await makeAuthority('trusted');
  await makeAuthority('unknown');
  for (const host of hosts) if (!host.leadsTo) await makeCertificate(host);
  await output('cp', [`${folder}/trusted.pem`, `${folder}/certificates`]);
  await openssl('rehash', `${folder}/certificates`);
  await writeFile(`${folder}/nginx.conf`, webConfiguration);
  await writeFile(`${folder}/dnsmasq.conf`, nameConfiguration);
  await writeFile(`${folder}/resolv.conf`, `nameserver ${address}\n`);
  await writeFile(`${folder}/nsswitch.conf`, 'hosts: files dns\n');
  await replace('/etc/resolv.conf', `${folder}/resolv.conf`);
  await replace('/etc/nsswitch.conf', `${folder}/nsswitch.conf`);
  await replace('/etc/ssl/certs', `${folder}/certificates`);

  const silent = createSocket('udp4');
  silent.bind(53, silentAddress);
  await once(silent, 'listening');
  const names = start('dnsmasq', [`--conf-file=${folder}/dnsmasq.conf`]);
  const web = start('nginx', ['-c', `${folder}/nginx.conf`]);
  const read = (name) => readFile(`${folder}/${name}`, 'utf8').catch(() => '');
  await until('the web server is up', () => read('nginx.pid'));
  return {
    visits: async () => (await read('visits.log')).split('\n').filter(Boolean),
    names: async () => [...(await read('names.log')).matchAll(/query\[\w+\] (\S+)/g)].map(([, name]) => name),
    async stop() {
      await end(names, 'SIGTERM');
      await end(web, 'SIGTERM');
      silent.close();
      for (const path of mounted.reverse()) await output('umount', [path]);
    },
  };
}
